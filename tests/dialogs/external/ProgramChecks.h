#pragma once

#include <algorithm>

#include <wx/filepicker.h>
#include <wx/textctrl.h>

#include "dialogs/data/DialogChecks.h"
#include "pickers/ScriptPicker.h"
#include "pickers/TextPicker.h"
#include "support/Layout.h"

/// What all dialogs have in common that ask how another program is to be run.
namespace program_checks
{
using namespace dialog_checks;

/// `wxDEFAULT_DIALOG_STYLE` and two bits of frames.
constexpr long STYLE = 0x2000180C;

/// The picker that fills a box.
template <class Picker>
Picker* CheckFilled(wxStaticBoxSizer* box, std::size_t item = 0)
{
    auto* const picker = dynamic_cast<Picker*>(Item(box, item)->GetWindow());
    REQUIRE(picker);
    CHECK(picker->GetParent() == box->GetStaticBox());
    CHECK(PlacementOf(Item(box, item)) == Placement{1, wxEXPAND, 5});
    return picker;
}

/// The field for names that fills a box: its example and the size of its text.
inline void CheckTexts(wxStaticBoxSizer* box, wxString const& example, wxSize const& size)
{
    auto* const picker = CheckFilled<TextPicker>(box);
    CHECK(Find<wxStaticText>(picker, 1)->GetLabel() == example);
    CHECK(Find<wxTextCtrl>(picker)->GetMinSize() == size);
}

/// The field for a file that fills a box: its label and its width.
inline void CheckScript(wxStaticBoxSizer* box, wxString const& label, int width)
{
    auto* const picker = CheckFilled<ScriptPicker>(box);
    CHECK(Find<wxStaticText>(picker)->GetLabel() == label);
    CHECK(Find<wxFilePickerCtrl>(picker)->GetMinSize() == wxSize(width, 27));
}

/// The field that is filled by typing of the n-th text picker of a dialog.
inline wxTextCtrl* TextOf(wxWindow const* dialog, std::size_t n)
{
    auto* const picker = Find<TextPicker>(dialog, n);
    REQUIRE(picker);
    return Find<wxTextCtrl>(picker);
}

inline wxFilePickerCtrl* ScriptOf(wxWindow const* dialog)
{
    return Find<wxFilePickerCtrl>(Find<ScriptPicker>(dialog));
}

/// Lets `destroy` delete `dialog` and gives `windows` in the order in which they went. Each window below
/// the dialog must go once.
inline std::vector<wxWindow*> Deletions(std::function<void()> const& destroy, wxWindow* dialog,
                                        std::vector<wxWindow*> const& windows)
{
    std::vector<wxWindow*> gone;
    for (auto* const window : FindAll<wxWindow>(dialog))
        window->Bind(wxEVT_DESTROY,
                     [&gone, window](wxWindowDestroyEvent& event)
                     {
                         if (event.GetEventObject() == window)
                             gone.push_back(window);
                         event.Skip();
                     });
    auto const count = FindAll<wxWindow>(dialog).size();
    destroy();
    CHECK(gone.size() == count);
    auto sorted = gone;
    std::sort(sorted.begin(), sorted.end());
    CHECK(std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end());
    std::vector<wxWindow*> order;
    for (auto* const window : gone)
        if (std::find(windows.begin(), windows.end(), window) != windows.end())
            order.push_back(window);
    return order;
}

/// Deletes the dialog before it is shown, and while the user is at work, which `use` is: at once, and
/// when the toolkit gets round to it. The windows that `inOrder` gives must go in this order, and nothing
/// must go twice.
template <class Dialog>
void CheckDeleted(std::function<std::vector<wxWindow*>(Dialog*)> const& inOrder,
                  std::function<void(Dialog*)> const& use)
{
    Stage stage;
    auto* const unused = new Dialog(stage.Frame());
    auto const unusedOrder = inOrder(unused);
    CHECK(Deletions([&] { delete unused; }, unused, unusedOrder) == unusedOrder);
    for (bool const atOnce : {true, false})
    {
        auto* const dialog = new Dialog(stage.Frame());
        dialog->Show();
        PumpUntil([&] { return dialog->IsActive(); });
        Pump(150);
        use(dialog);
        auto const destroy = [&]
        {
            if (atOnce)
                delete dialog;
            else
                dialog->Destroy();
            Pump(50);
        };
        CAPTURE(atOnce);
        auto const order = inOrder(dialog);
        CHECK(Deletions(destroy, dialog, order) == order);
        CHECK(FindAll<wxDialog>(stage.Frame()).empty());
    }
}
} // namespace program_checks
