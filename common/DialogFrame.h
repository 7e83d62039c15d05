#pragma once

#include <initializer_list>

#include <wx/dialog.h>
#include <wx/frame.h>
#include <wx/sizer.h>
#include <wx/statbox.h>

class wxButton;

namespace zenqo
{
/// The window style of a dialog that asks how another program is to be run.
inline constexpr long PROGRAM_DIALOG_STYLE
    = wxDEFAULT_DIALOG_STYLE | wxFRAME_TOOL_WINDOW | wxFRAME_FLOAT_ON_PARENT;

/// Adds to `sizer` the row of buttons that ends a dialog, the one that accepts (`wxID_OK`, with the
/// label `acceptLabel`) and "&Cancel" (`wxID_CANCEL`), and returns the first of the two.
wxButton* AddButtonRow(wxDialog* dialog, wxSizer* sizer, wxString const& acceptLabel, int proportion,
                       int flags);

/// The same for a dialog that is shown to be accepted as it stands: the first button has the keyboard,
/// and Enter presses it wherever the keyboard is.
wxButton* AddFocusedButtonRow(wxDialog* dialog, wxSizer* sizer, wxString const& acceptLabel = "&Run");

/// Adds to `sizer` a grid of one cell, which fills the grid.
wxFlexGridSizer* AddGrowingCell(wxSizer* sizer);

/// Adds to `sizer` an empty box with `label`, in which an ampersand is written twice.
wxStaticBoxSizer* AddLabelledBox(wxWindow* parent, wxSizer* sizer, wxString const& label,
                                 int proportion = 0, int flags = wxEXPAND | wxALL, int border = 5);

/// Makes a picker of `arguments` and lets it fill `box`.
template <class Picker, class... Arguments>
Picker* FillBox(wxStaticBoxSizer* box, Arguments... arguments)
{
    auto* const picker = new Picker(box->GetStaticBox(), arguments...);
    box->Add(picker, 1, wxEXPAND, 5);
    return picker;
}

/// Adds to `sizer` a box with `label` around a picker that is made of `arguments`.
template <class Picker, class... Arguments>
Picker* AddBoxedPicker(wxDialog* dialog, wxSizer* sizer, wxString const& label, Arguments... arguments)
{
    return FillBox<Picker>(AddLabelledBox(dialog, sizer, label), arguments...);
}

/// The end of a dialog's constructor: gives it its sizer, lays it out and centres it, and repeats
/// the last step, since the size hints may have changed the size. One round leaves it where its
/// unfinished size was centred.
void LayOutDialog(wxDialog* dialog, wxSizer* sizer, int rounds = 2);

/// The same for a dialog with a note, which needs its width to know its height.
template <class Note>
void LayOutAroundNote(wxDialog* dialog, wxSizer* sizer, Note* note)
{
    dialog->SetSizer(sizer);
    sizer->SetSizeHints(dialog);
    dialog->Layout();
    note->ResizeNoteWindow();
    sizer->SetSizeHints(dialog);
    dialog->Centre(wxBOTH);
}

/// For a dialog's destructor: deletes some of its controls before the toolkit deletes the others.
void DeleteInOrder(std::initializer_list<wxWindow*> windows);

/// What is wrong with the names that a picker gives; nothing is if there is one. `what` says what they
/// are names of.
wxString ComplainOfNone(wxArrayString const& names, wxString const& what = "variables");

/// What is wrong with `name`, which the user gave to something new: `missing` if there is none, `illegal`
/// if the engine does not take it.
wxString ComplainOfName(wxString const& name, wxString const& missing, wxString const& illegal);

/// The end of a dialog's handler of `wxID_OK`. Without a complaint the event goes on and ends the
/// dialog; otherwise the user is warned and the dialog stays as it is.
void AcceptUnless(wxString const& complaint, wxDialog* dialog, wxCommandEvent& event);
} // namespace zenqo
