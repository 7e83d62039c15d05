#pragma once

#include <functional>
#include <tuple>

#include "common/DialogFrame.h"

namespace zenqo
{
/// What the dialogs share that ask for a script of another program, for the items that go out to the
/// program and for those that come back.
///@{

/// Their words; each program is called and treated in its own way.
struct BridgeWords
{
    wxString scriptBox;
    wxString scriptLabel;
    wxString outputBox; ///< Of what leaves the application.
    wxString inputBox;  ///< Of what comes into it.
    wxString inputExample;
};

/// Below the first box of a bridge each box leaves the border at its top to the one above it.
inline constexpr int BELOW_FIRST_BOX = wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM;

/// Adds the box around one of the fields for items.
template <class TextPicker>
TextPicker* AddItemsBox(wxDialog* dialog, wxSizer* sizer, wxString const& label, wxString const& example)
{
    auto* const box = AddLabelledBox(dialog, sizer, label, 1, BELOW_FIRST_BOX);
    return FillBox<TextPicker>(box, wxString(example), 500, 70);
}

/// Fills the dialog, and gives the fields for what goes out, for what comes in, and for the script.
/// `addOptions` adds what stands below the script.
template <class TextPicker, class ScriptPicker>
std::tuple<TextPicker*, TextPicker*, ScriptPicker*>
BuildBridge(wxDialog* dialog, BridgeWords const& words,
            std::function<void(wxSizer*)> const& addOptions = [](wxSizer*) {})
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const script
        = AddBoxedPicker<ScriptPicker>(dialog, sizer, words.scriptBox, wxString(words.scriptLabel), 500);
    addOptions(sizer);
    auto* const output
        = AddItemsBox<TextPicker>(dialog, sizer, words.outputBox, "mat1, mat2, mydataset, ...");
    auto* const input = AddItemsBox<TextPicker>(dialog, sizer, words.inputBox, words.inputExample);
    AddFocusedButtonRow(dialog, sizer);
    LayOutDialog(dialog, sizer);
    return {output, input, script};
}

/// The user accepts: without a script `complaint` is shown and the dialog stays.
template <class Dialog>
void AcceptScript(Dialog* dialog, wxString const& complaint, wxCommandEvent& event)
{
    AcceptUnless(dialog->GetScript().empty() ? complaint : wxString(), dialog, event);
}
///@}
} // namespace zenqo
