#pragma once

#include <string>

#include <wx/dialog.h>

#include "engine/Export.h"

class ScriptPicker;
class TextPicker;
class wxSizer;
class wxTextCtrl;

/// Asks for a script of MATLAB, for the options of the command line, for the items that the script is
/// given and for the matrices that it gives back.
///
/// It runs nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters.
class ZENQO_API MatlabDialog : public wxDialog
{
public:
    explicit MatlabDialog(wxWindow* parent);
    ~MatlabDialog() override;

    /// The path of the script as it was typed; not empty once the dialog was accepted. Whether there is
    /// such a file was not asked.
    std::string GetScript() const;

    /// The names of the items that leave the application, as they were typed; there may be none.
    std::string GetOutputData() const;

    /// The names of what comes into the application, as they were typed; there may be none.
    std::string GetInputData() const;

    /// The options of the command line as they stand; there may be none.
    std::string GetOptions() const;

    /// The user accepts: a missing script is answered by a warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

private:
    void AddOptions(wxSizer* sizer);

    TextPicker* m_output;
    TextPicker* m_input;
    ScriptPicker* m_script;
    wxTextCtrl* m_options;
};
