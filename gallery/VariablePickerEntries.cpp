#include <wx/frame.h>
#include <wx/listbox.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "modelspec/VariablePicker_Y_X.h"
#include "modelspec/VariablePicker_yX.h"
#include "modelspec/VariablePicker_yX2.h"
#include "modelspec/VariablePicker_yXZ.h"
#include "modelspec/VariablePicker_yZX.h"
#include "modelspec/VariablePicker_yZX2.h"

namespace
{
/// Variables that a user selects at the left, and the button that is pressed then.
template <class Picker>
struct Move
{
    void (Picker::*press)(wxCommandEvent&);
    std::initializer_list<char const*> variables;
};

/// A variable picker in which a user has made some choices. A picker's left list is its first list.
template <class Picker, class... Captions>
wxTopLevelWindow* VariablePicker(DatasetMap& datasets, std::initializer_list<Move<Picker>> moves,
                                 Captions... captions)
{
    return FrameAround(
        [&](wxFrame* frame)
        {
            auto* const picker = new Picker(frame, &datasets, 130, captions...);
            auto* const left = In<wxListBox>(picker);
            for (auto const& move : moves)
            {
                wxCommandEvent event;
                picker->OnAllVarSelected(event);
                left->SetSelection(wxNOT_FOUND);
                for (auto const* const name : move.variables)
                    left->SetStringSelection(name);
                (picker->*move.press)(event);
            }
            return picker;
        });
}

/// Ozone explained by the weather, in either of the two pickers for one list.
template <class Picker>
wxTopLevelWindow* OzonePicker(Shelf& shelf)
{
    return VariablePicker<Picker>(shelf.datasets, {{&Picker::OnUpperButton, {"Ozone"}},
                                                   {&Picker::OnLowerButton, {"Solar_R", "Wind"}}});
}

wxTopLevelWindow* SeveralDependent(Shelf& shelf)
{
    using Picker = VariablePicker_Y_X;
    return VariablePicker<Picker>(shelf.datasets,
                                  {{&Picker::OnUpperButton, {"Ozone", "Temp"}},
                                   {&Picker::OnLowerButton, {"Solar_R", "Wind"}}},
                                  "Dependent Variables", "Exogenous Variables");
}

wxTopLevelWindow* SharedLists(Shelf& shelf)
{
    using Picker = VariablePicker_yXZ;
    return VariablePicker<Picker>(shelf.datasets,
                                  {{&Picker::OnUpperButton, {"Ozone"}},
                                   {&Picker::OnLowerButton1, {"Wind", "Temp"}},
                                   {&Picker::OnLowerButton2, {"Solar_R", "Wind"}}},
                                  "Regressors", "Instruments");
}

wxTopLevelWindow* TwoLists(Shelf& shelf)
{
    using Picker = VariablePicker_yZX;
    return VariablePicker<Picker>(shelf.datasets,
                                  {{&Picker::OnUpperButton, {"Ozone"}},
                                   {&Picker::OnLowerButton1, {"Month"}},
                                   {&Picker::OnLowerButton2, {"Wind", "Temp"}}},
                                  "Group-Effects Variables", "Independent Variables");
}

wxTopLevelWindow* Families(Shelf& shelf)
{
    using Picker = VariablePicker_yZX2;
    return VariablePicker<Picker>(shelf.surveys,
                                  {{&Picker::OnUpperButton, {"choice"}},
                                   {&Picker::OnLowerButton1, {"cost_2"}},
                                   {&Picker::OnLowerButton2, {"income", "age"}}},
                                  "Variables by Alternative", "Variables by Traveller");
}
} // namespace

std::vector<Entry> VariablePickerEntries()
{
    return {
        {"modelspec", "VariablePicker_yX", OzonePicker<VariablePicker_yX>},
        {"modelspec", "VariablePicker_yX2", OzonePicker<VariablePicker_yX2>},
        {"modelspec", "VariablePicker_Y_X", SeveralDependent},
        {"modelspec", "VariablePicker_yXZ", SharedLists},
        {"modelspec", "VariablePicker_yZX", TwoLists},
        {"modelspec", "VariablePicker_yZX2", Families},
    };
}
