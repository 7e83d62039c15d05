// The workbench's program: a window, or a script run without one.

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <langinfo.h>
#include <unistd.h>

#include <wx/app.h>
#include <wx/cmdline.h>
#include <wx/filename.h>
#include <wx/stdpaths.h>

#include "engine/Globals.h"
#include "workbench/app/Batch.h"
#include "workbench/app/MainFrame.h"
#include "workbench/engine/Settings.h"

namespace
{
std::string Narrow(wxString const& text) { return text.ToStdString(wxConvLibc); }

/// The toolkit leaves a process in the "C" locale, in which no text outside ASCII converts.
void SetLocale()
{
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        std::setlocale(LC_CTYPE, "C.UTF-8");
    // Scripts and data are written with decimal points everywhere.
    std::setlocale(LC_NUMERIC, "C");
}

/// The folder beside the program's own in which its files lie.
std::string InstallationRoot()
{
    wxFileName root(wxStandardPaths::Get().GetExecutablePath());
    root.RemoveLastDir();
    root.AppendDir("share");
    root.AppendDir("zenqo");
    return Narrow(root.GetPath());
}

/// Where the desktop keeps what a user has set: XDG_CONFIG_HOME, or .config in the user's folder.
std::string SettingsFile()
{
    auto& paths = wxStandardPaths::Get();
    paths.SetFileLayout(wxStandardPaths::FileLayout_XDG);
    return Narrow(paths.GetUserConfigDir()) + "/zenqo-workbench/settings.json";
}

class WorkbenchApp : public wxApp
{
public:
    bool OnInit() override
    {
        if (!wxApp::OnInit())
            return false;
        Zenqo_SYSTEM_NAMESPACE::RUN_GUI = m_batch.empty();
        Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM = InstallationRoot();
        if (m_batch.empty())
            ShowWindow();
        return true;
    }

    int OnRun() override
    {
        if (m_batch.empty())
            return wxApp::OnRun();
        // The same outside programs as in the window.
        std::string warning;
        workbench::ApplyPrograms(workbench::LoadSettings(SettingsFile(), warning));
        if (!warning.empty())
            std::fprintf(stderr, "zenqo-workbench: %s\n", warning.c_str());
        return workbench::RunBatch(m_batch);
    }

    void OnInitCmdLine(wxCmdLineParser& parser) override
    {
        wxApp::OnInitCmdLine(parser);
        parser.AddLongOption("batch", "run a script without a window; exit status 1 at the first error");
        parser.AddLongOption("run", "open the window and run a script in it");
        parser.AddParam("FILE.zws", wxCMD_LINE_VAL_STRING, wxCMD_LINE_PARAM_OPTIONAL);
    }

    bool OnCmdLineParsed(wxCmdLineParser& parser) override
    {
        wxString value;
        if (parser.Found("batch", &value))
            m_batch = Narrow(value);
        if (parser.Found("run", &value))
            m_script = Narrow(value);
        if (parser.GetParamCount() > 0)
            m_workspaceFile = Narrow(parser.GetParam(0));
        return wxApp::OnCmdLineParsed(parser);
    }

private:
    void ShowWindow()
    {
        auto* const frame
            = new workbench::MainFrame(Zenqo_SYSTEM_NAMESPACE::ZENQO_SYSTEM + "/Samples", SettingsFile());
        frame->Show();
        // Files are opened once the window is on the screen, where the user can see it happen.
        frame->CallAfter(
            [this, frame]
            {
                if (!m_workspaceFile.empty())
                    frame->OpenFile(m_workspaceFile);
                if (!m_script.empty())
                    frame->RunFile(m_script);
                if (m_workspaceFile.empty() && m_script.empty())
                    frame->GreetUser();
            });
    }

    std::string m_batch;
    std::string m_script;
    std::string m_workspaceFile;
};

/// A batch run needs a display for the toolkit though nothing is shown on it: without one the
/// program starts itself again on a virtual one.
void UseVirtualDisplay(int argc, char** argv)
{
    bool batch = false;
    for (int i = 1; i < argc; ++i)
        batch = batch || std::strncmp(argv[i], "--batch", 7) == 0;
    if (!batch || std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY"))
        return;
    std::vector<char*> arguments{const_cast<char*>("xvfb-run"), const_cast<char*>("-a")};
    arguments.insert(arguments.end(), argv, argv + argc);
    arguments.push_back(nullptr);
    execvp("xvfb-run", arguments.data());
    std::fputs("zenqo-workbench: there is no display, and no xvfb-run to make one for a batch run\n", stderr);
    std::exit(2);
}
} // namespace

wxIMPLEMENT_APP_NO_MAIN(WorkbenchApp);

int main(int argc, char** argv)
{
    UseVirtualDisplay(argc, argv);
    // Before the toolkit starts: it converts the arguments, file names among them.
    SetLocale();
    return wxEntry(argc, argv);
}
