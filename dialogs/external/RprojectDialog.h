#pragma once

#include <string>

#include <wx/dialog.h>

#include "engine/Export.h"

class ScriptPicker;
class TextPicker;

/// Asks for a script of R, for the items that it is given and for the objects that it
/// gives back.
///
/// It runs nothing: after `ShowModal` has returned `wxID_OK` the owner reads the getters.
class ZENQO_API RprojectDialog : public wxDialog
{
public:
    explicit RprojectDialog(wxWindow* parent);
    ~RprojectDialog() override;

    /// The path of the script as it was typed; not empty once the dialog was accepted. Whether there is
    /// such a file was not asked.
    std::string GetScript() const;

    /// The names of the items that leave the application, as they were typed; there may be none.
    std::string GetOutputData() const;

    /// The names of what comes into the application, as they were typed; there may be none.
    std::string GetInputData() const;

    /// The user accepts: a missing script is answered by a warning and the dialog stays.
    void OnButtonOk(wxCommandEvent& event);

private:
    TextPicker* m_output;
    TextPicker* m_input;
    ScriptPicker* m_script;
};
