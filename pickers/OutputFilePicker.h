#pragma once

#include <string>

#include <wx/panel.h>

#include "engine/Export.h"

class wxFilePickerCtrl;
class wxRadioButton;

/// Lets the user name a file to be written, or leave that to the default.
///
/// The file's field can be used while "Custom" is chosen. A path that stands in it stays there while
/// "Default" is chosen, and counts again once "Custom" is.
class ZENQO_API OutputFilePicker : public wxPanel
{
public:
    /// `what` names the file in the labels of the two choices ("output file"). The default is chosen.
    OutputFilePicker(wxWindow* parent, wxString what);

    /// The path as it stands if "Custom" is chosen, otherwise an empty string, which means the
    /// default: what that is, the caller decides. Empty also if the path has no narrow form.
    std::string GetFilename() const;

    /// The user has chosen the default: the field is disabled.
    void OnDefaultChoice(wxCommandEvent& event);

    /// The user wants to name the file: the field is enabled.
    void OnCustomChoice(wxCommandEvent& event);

private:
    wxRadioButton* m_default;
    wxRadioButton* m_custom;
    wxFilePickerCtrl* m_file;
};
