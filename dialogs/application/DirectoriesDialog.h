#pragma once

#include <string>

#include <wx/dialog.h>

#include "engine/Export.h"

class wxFilePickerCtrl;

/// Asks where the binaries of seven outside programs are.
///
/// It shows what the engine's globals (`GLOBAL_DirectoryJAGS` and so on) say when it is made and changes
/// none of them: after `ShowModal` has returned `wxID_OK` the owner reads the getters and stores what
/// they give. Nothing is checked; only the chooser behind a field's button insists on a file that exists.
class ZENQO_API DirectoriesDialog : public wxDialog
{
public:
    /// A program whose path is not set (`zenqo::DEFAULT_STRING`) has an empty field.
    explicit DirectoriesDialog(wxWindow* parent);

    /// The path of a program's binary as it stands in its field. An empty field, or a path that has no
    /// narrow form, gives `zenqo::DEFAULT_STRING`, never an empty text.
    ///@{
    std::string GetJAGSDir() const;
    std::string GetBUGSDir() const;
    std::string GetSTANDir() const;
    std::string GetMATLABDir() const;
    std::string GetOCTAVEDir() const;
    std::string GetRDir() const;
    std::string GetSTATADir() const;
    ///@}

private:
    wxFilePickerCtrl* m_jags;
    wxFilePickerCtrl* m_bugs;
    wxFilePickerCtrl* m_stan;
    wxFilePickerCtrl* m_matlab;
    wxFilePickerCtrl* m_octave;
    wxFilePickerCtrl* m_r;
    wxFilePickerCtrl* m_stata;
};
