#include "support/Incidents.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <unistd.h>

#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/log.h>
#include <wx/modalhook.h>
#include <wx/msgdlg.h>

#include "support/ModalScript.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" void __sanitizer_set_report_fd(void* fd);
#endif

namespace incidents
{
namespace
{
std::vector<std::string> g_incidents;
std::FILE* g_capture = nullptr;
int g_realStderr = -1;
long g_read = 0;

std::string NewStderrText()
{
    if (!g_capture)
        return {};
    std::fflush(stderr);
    int const fd = fileno(g_capture);
    long const end = lseek(fd, 0, SEEK_END);
    std::string text(static_cast<std::size_t>(end - g_read), '\0');
    auto const got = pread(fd, text.data(), text.size(), g_read);
    text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    g_read = end;
    return text;
}

void OnAssert(wxString const& file, int line, wxString const& function, wxString const& condition,
              wxString const& message)
{
    Report(wxString::Format("toolkit assertion \"%s\" in %s at %s:%d: %s", condition, function, file,
                            line, message)
               .ToStdString(wxConvUTF8));
}

class LogWatch : public wxLog
{
protected:
    void DoLogTextAtLevel(wxLogLevel level, wxString const& text) override
    {
        if (level <= wxLOG_Message)
            Report("toolkit log: " + text.ToStdString(wxConvUTF8));
    }
};

/// Answers a box that no test asked for, so that the test fails instead of waiting for a user.
class UnaskedBox : public wxModalDialogHook
{
protected:
    int Enter(wxDialog* dialog) override
    {
        if (ModalScript::Active())
            return wxID_NONE;
        Report("a box that no test asked for: " + ShownDialog(dialog).Describe());
        return wxID_CANCEL;
    }
};

UnaskedBox g_unaskedBox;

/// A process that dies says its last words on standard error: pass them on.
void OnAbort(int)
{
    char buffer[4096];
    long from = g_read;
    for (;;)
    {
        auto const got = pread(fileno(g_capture), buffer, sizeof buffer, from);
        if (got <= 0 || write(g_realStderr, buffer, static_cast<std::size_t>(got)) < 0)
            break;
        from += got;
    }
    std::signal(SIGABRT, SIG_DFL);
}
} // namespace

void Report(std::string const& what) { g_incidents.push_back(what); }

std::vector<std::string> Take()
{
    auto const text = NewStderrText();
    if (!text.empty())
        Report("standard error: " + text);
    return std::exchange(g_incidents, {});
}

void Watch()
{
    wxSetAssertHandler(OnAssert);
    delete wxLog::SetActiveTarget(new LogWatch);
    g_unaskedBox.Register();

    std::fflush(stderr);
    g_capture = std::tmpfile();
    g_realStderr = dup(STDERR_FILENO);
    dup2(fileno(g_capture), STDERR_FILENO);
    std::signal(SIGABRT, OnAbort);
#if defined(__SANITIZE_ADDRESS__)
    // A sanitizer's report ends the process: it goes to the real standard error at once.
    __sanitizer_set_report_fd(reinterpret_cast<void*>(static_cast<long>(g_realStderr)));
#endif
}

void Unwatch()
{
    g_unaskedBox.Unregister();
    std::fflush(stderr);
    dup2(g_realStderr, STDERR_FILENO);
    delete wxLog::SetActiveTarget(nullptr);
}
} // namespace incidents
