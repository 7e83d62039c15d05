#include "modelspec/PriorDialog.h"

#include <algorithm>

#include <wx/button.h>
#include <wx/notebook.h>

#include "common/DialogFrame.h"
#include "common/NotebookDialog.h"
#include "pickers/NotePanel.h"

namespace
{
constexpr int ID_DEFAULT = 6023;
constexpr int WIDTH = 600;
constexpr int HEIGHT = 400;
}

PriorDialog::PriorDialog(wxWindow* parent, wxString& title, wxString note)
    : wxDialog(parent, wxID_ANY, title, wxDefaultPosition, wxSize(WIDTH, HEIGHT), zenqo::NOTEBOOK_DIALOG_STYLE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_notebook = zenqo::AddNotebook(this, sizer);
    NotePanel* notePanel = nullptr;
    if (!note.empty())
    {
        notePanel = new NotePanel(this, note, wxDefaultSize, false);
        sizer->Add(notePanel, 0, wxEXPAND | wxALL, 10);
    }
    auto* const restore = new wxButton(this, ID_DEFAULT, "&Default");
    zenqo::AddClosingButtons(this, sizer, restore, 2)->SetFocus();

    if (notePanel)
        zenqo::LayOutAroundNote(this, sizer, notePanel);
    else
        zenqo::LayOutDialog(this, sizer, 1);
    // A note may ask for more; the pages give it of their room.
    SetMinSize(wxSize(GetMinWidth(), std::min(GetMinHeight(), HEIGHT)));
    SetSize(WIDTH, HEIGHT);
}

bool PriorDialog::Show(bool show)
{
    // The owner's pages took the keyboard when they were added.
    if (show)
        FindWindow(wxID_OK)->SetFocus();
    return wxDialog::Show(show);
}

wxNotebook* PriorDialog::GetNotebook() const { return m_notebook; }
