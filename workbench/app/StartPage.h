#pragma once

#include <functional>
#include <string>

#include <wx/html/htmlwin.h>

namespace workbench
{
/// The page that meets a newcomer: what the workbench is for, sample data to begin with, and how to
/// get data of one's own in.
class StartPage : public wxHtmlWindow
{
public:
    /// `run` is handed the script statement behind the link that the user clicked.
    StartPage(wxWindow* parent, std::string const& samples, std::function<void(std::string const&)> run);

private:
    void OnLink(wxHtmlLinkEvent& event);

    std::string m_samples;
    std::function<void(std::string const&)> m_run;
};
} // namespace workbench
