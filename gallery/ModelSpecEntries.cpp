#include <wx/frame.h>
#include <wx/radiobut.h>
#include <wx/spinctrl.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "modelspec/LagsPicker.h"
#include "modelspec/PriorPicker.h"
#include "modelspec/PriorProbPicker.h"
#include "modelspec/VariablePickerMark.h"

namespace
{
/// The lags of half a year of months, and of the same month the year before.
wxTopLevelWindow* Lags()
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const picker = new LagsPicker(frame);
            auto const add = [picker](int from, int to)
            {
                int const values[] = {from, to};
                int next = 0;
                for (auto* const child : picker->GetChildren())
                    if (auto* const spin = dynamic_cast<wxSpinCtrl*>(child))
                        spin->SetValue(values[next++]);
                wxCommandEvent press;
                picker->OnButton(press);
            };
            add(2, 6);
            add(12, 12);
            return picker;
        });
}

wxTopLevelWindow* Mark(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const picker = new VariablePickerMark(frame, &shelf.datasets);
            SelectInFirstList(picker, {5});
            wxCommandEvent event;
            picker->OnUpperButton(event);
            return picker;
        });
}

/// With the user's own prior, which can be defined.
template <class Picker>
wxTopLevelWindow* OwnPrior()
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const picker = new Picker(frame);
            // The second of the two radio buttons.
            Choose(dynamic_cast<wxRadioButton*>(picker->GetChildren()[1]), wxEVT_RADIOBUTTON);
            return picker;
        });
}
} // namespace

std::vector<Entry> ModelSpecEntries()
{
    return {
        {"modelspec", "LagsPicker", [](Shelf&) { return Lags(); }},
        {"modelspec", "PriorPicker", [](Shelf&) { return OwnPrior<PriorPicker>(); }},
        {"modelspec", "PriorProbPicker", [](Shelf&) { return OwnPrior<PriorProbPicker>(); }},
        {"modelspec", "VariablePickerMark", Mark},
    };
}
