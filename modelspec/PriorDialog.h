#pragma once

#include <wx/dialog.h>

#include "engine/Export.h"

class wxNotebook;

/// The frame in which a prior is edited: a notebook for the owner's pages of numbers, a note, and the
/// buttons "&OK" and "&Default".
///
/// The owner adds the pages, shows the dialog modally and reads them. "&OK" (`wxID_OK`) ends the modal
/// loop; "&Default" has the id 6023 and does nothing by itself: the owner binds its `wxEVT_BUTTON`, on
/// this dialog, since no command travels beyond a dialog.
class ZENQO_API PriorDialog : public wxDialog
{
public:
    /// `note` is shown below the pages, as a NotePanel shows it; an empty one takes no room.
    PriorDialog(wxWindow* parent, wxString& title, wxString note);

    /// The notebook, empty at first. Its pages are made with it as their parent.
    wxNotebook* GetNotebook() const;

    /// Each time it is shown "&OK" has the keyboard at first.
    bool Show(bool show = true) override;

private:
    wxNotebook* m_notebook;
};
