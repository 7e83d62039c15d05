#include "gallery/Photographer.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/filename.h>
#include <wx/frame.h>
#include <wx/image.h>
#include <wx/log.h>
#include <wx/statusbr.h>
#include <wx/stopwatch.h>
#include <wx/toplevel.h>

#include "gallery/Entry.h"

namespace
{
/// What the toolkit complained of since it was last asked.
std::string g_complaints;

void OnAssert(wxString const& file, int line, wxString const&, wxString const& condition,
              wxString const& message)
{
    g_complaints += wxString::Format("%s:%d: %s %s\n", file, line, condition, message).ToStdString(wxConvUTF8);
}

class LogToComplaints : public wxLog
{
    void DoLogTextAtLevel(wxLogLevel, wxString const& text) override
    {
        g_complaints += text.ToStdString(wxConvUTF8) + "\n";
    }
};

void RunEventsFor(int milliseconds)
{
    for (wxStopWatch watch; watch.Time() < milliseconds; wxMilliSleep(5))
    {
        wxTheApp->Yield();
        wxTheApp->ProcessIdle();
    }
}

/// Another program takes the picture: it sees what the user sees.
bool TakePicture(wxTopLevelWindow const& window, std::string const& file)
{
    wxPoint const corner = window.ClientToScreen(wxPoint(0, 0));
    wxSize size = window.GetClientSize();
    auto const* const frame = dynamic_cast<wxFrame const*>(&window);
    if (frame && frame->GetStatusBar())
        size.y += frame->GetStatusBar()->GetSize().y;
    wxString const command
        = wxString::Format("import -silent -window root -crop %dx%d+%d+%d +repage -strip 'png24:%s'", size.x,
                           size.y, corner.x, corner.y, wxString::FromUTF8(file));
    if (std::system(command.utf8_str()) != 0)
        return false;
    wxImage const image(wxString::FromUTF8(file));
    return image.IsOk() && image.CountColours(3) > 2;
}

std::string FileOf(Entry const& entry)
{
    std::string file = entry.name + ".png";
    file.erase(std::remove(file.begin(), file.end(), ','), file.end());
    std::replace(file.begin(), file.end(), ' ', '-');
    return file;
}

bool PhotographOne(Entry const& entry, Shelf& shelf, std::string const& folder)
{
    auto* const window = entry.build(shelf);
    window->Move(60, 60);
    window->Show();
    RunEventsFor(700);
    bool taken = TakePicture(*window, folder + "/" + FileOf(entry));
    window->Destroy();
    RunEventsFor(50);

    if (!g_complaints.empty())
        std::cerr << entry.name << ": " << g_complaints;
    taken = taken && g_complaints.empty();
    g_complaints.clear();
    return taken;
}

void WriteIndex(std::vector<Entry> const& entries, std::string const& folder)
{
    std::ofstream index(folder + "/README.md");
    index << "# Gallery\n\nEvery widget alone, as `scripts/gallery` photographed it.\n";
    std::string section;
    for (auto const& entry : entries)
    {
        if (entry.folder != section)
            index << "\n## " << (section = entry.folder) << "\n";
        index << "\n### " << entry.name << "\n\n![" << entry.name << "](" << FileOf(entry) << ")\n";
    }
}
} // namespace

std::vector<std::string> PhotographAll(std::vector<Entry> const& entries, Shelf& shelf,
                                       std::string const& folder)
{
    wxEventLoop loop;
    wxEventLoopActivator const activate(&loop);
    wxSetAssertHandler(OnAssert);
    delete wxLog::SetActiveTarget(new LogToComplaints);
    wxFileName::Mkdir(wxString::FromUTF8(folder), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);

    std::vector<std::string> failed;
    for (auto const& entry : entries)
        if (!PhotographOne(entry, shelf, folder))
            failed.push_back(entry.name);
    WriteIndex(entries, folder);
    delete wxLog::SetActiveTarget(nullptr);
    return failed;
}
