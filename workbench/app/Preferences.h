#pragma once

#include <functional>
#include <string>

#include <wx/string.h>

#include "workbench/engine/Settings.h"

class wxWindow;

namespace workbench
{
/// What the user has set, and the dialogs in which it is set. Every change is kept at once.
class Preferences
{
public:
    /// The settings are kept in `file`, and nowhere if that is empty. `warn` tells the user what went
    /// wrong with it.
    Preferences(std::string const& file, std::function<void(std::string const&)> warn);

    Settings const& Get() const { return m_settings; }

    /// Shows the dialog of the preferences.
    void Edit(wxWindow* parent);

    /// Shows the dialog with the paths to outside programs, which are globals of the engine.
    void EditPaths(wxWindow* parent);

    /// Shows the quick-start page, on which the user may say that it is not to come by itself again.
    void ShowQuickStart(wxWindow* parent);

    /// Makes the folder of `path` the working directory if the user wants that, as `setting` says.
    void FollowTo(wxString const& path, bool Settings::*setting) const;

private:
    void Keep() const;

    std::string m_file;
    std::function<void(std::string const&)> m_warn;
    Settings m_settings;
};
} // namespace workbench
