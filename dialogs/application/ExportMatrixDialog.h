#pragma once

#include <string>

#include <wx/dialog.h>

#include "engine/Export.h"

class wxFilePickerCtrl;
class wxRadioBox;

/// Asks which text file a matrix goes into, and with which delimiter.
///
/// It touches neither file nor matrix: after `ShowModal` has returned `wxID_OK` the owner reads the
/// getters and writes. Nothing is checked but what the file picker itself asks before it lets the user
/// replace a file.
class ZENQO_API ExportMatrixDialog : public wxDialog
{
public:
    /// Proposes the file "./NAME.csv" for `name`. `flag` has no effect.
    ExportMatrixDialog(wxWindow* parent, wxString title, bool flag, std::string const& name);

    /// The whole path of the chosen file, folder included; empty if it has no narrow form.
    std::string GetFileName() const;

    /// The folder of the chosen file, without a separator at its end.
    wxString GetPath() const;

    /// Comma, semicolon or tab, as one character.
    char GetDelimiter() const;

private:
    wxFilePickerCtrl* m_filePicker;
    wxRadioBox* m_delimiter;
};
