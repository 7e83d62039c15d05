#pragma once

#include <wx/dialog.h>

#include "engine/Export.h"

class wxCheckBox;
class wxStaticLine;

/// Asks for eight settings of the application, each a yes or no.
///
/// It stores nothing and checks nothing: after `ShowModal` has returned `wxID_OK` the owner reads the
/// check boxes, which are public, and keeps what they say.
class ZENQO_API OptionsDialog : public wxDialog
{
public:
    /// The arguments are the settings as they are; the two prompts come first here and last on the
    /// screen.
    OptionsDialog(wxWindow* parent, bool promptWorkspace, bool promptScripts, bool dirOnImport,
                  bool dirOnExport, bool dirOnLoadWorkspace, bool dirOnSaveWorkspace,
                  bool dirOnOpenScript, bool dirOnSaveScript);

    /// Whether the user is asked about what is not saved: the workspace, when the application ends;
    /// scripts, when they are closed or it ends.
    ///@{
    wxCheckBox* m_promptWorkspace;
    wxCheckBox* m_promptScripts;
    ///@}

    /// Whether the working directory becomes the folder of the file in question: of data, of a
    /// workspace, of a script.
    ///@{
    wxCheckBox* m_dirOnImport;
    wxCheckBox* m_dirOnExport;
    wxCheckBox* m_dirOnLoadWorkspace;
    wxCheckBox* m_dirOnSaveWorkspace;
    wxCheckBox* m_dirOnOpenScript;
    wxCheckBox* m_dirOnSaveScript;
    ///@}

    /// Stands between the two groups.
    wxStaticLine* m_line;
};
