#pragma once

#include <wx/dialog.h>

#include "engine/Export.h"

class wxRadioBox;
class wxTextCtrl;

/// Asks for the name of a new dataset and for the delimiter of the text file that it comes from.
///
/// It touches neither file nor workspace: after `ShowModal` has returned `wxID_OK` the owner reads
/// the getters and composes the import command.
class ZENQO_API ImportDataDialog : public wxDialog
{
public:
    /// `name` is the proposal that the name field shows first.
    ImportDataDialog(wxWindow* parent, wxString& name);

    /// The name as it was typed.
    wxString GetDatasetName() const;

    /// Comma, semicolon or tab, as one character.
    char GetDelimiter() const;

    /// A light check: false if `name` holds a blank, tab, line break, comma or dot. All else passes,
    /// an empty name too; the stricter rule of the script language is the owner's to apply.
    bool CheckIDString(wxString name) const;

    /// The user accepts: a name that fails the check is answered by a warning and the dialog stays.
    void OnButtonImport(wxCommandEvent& event);

private:
    wxTextCtrl* m_name;
    wxRadioBox* m_delimiter;
};
