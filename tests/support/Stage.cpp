#include "support/Stage.h"

#include <cstdlib>

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/filefn.h>
#include <wx/filename.h>
#include <wx/sizer.h>
#include <wx/stopwatch.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

Stage::Stage(wxSize size)
    : m_frame(new wxFrame(nullptr, wxID_ANY, "Stage", wxPoint(20, 20), size))
{
    m_frame->Show();
    Pump(20);
    // While the window manager puts its decoration around the window, it is a few pixels small. After
    // a dialog, which is decorated otherwise, it stays a few pixels large.
    auto const isWhole = [&]
    { return m_frame->GetSize().x >= size.x && m_frame->GetSize().y >= size.y; };
    PumpUntil([&] { return m_frame->IsActive() && isWhole(); }, 2000);
}

Stage::~Stage()
{
    m_frame->Destroy();
    Pump(10);
}

void Stage::Fill(wxWindow* widget)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(widget, 1, wxEXPAND);
    m_frame->SetSizer(sizer);
    m_frame->Layout();
    Pump();
}

void Pump(int milliseconds)
{
    wxStopWatch watch;
    do
    {
        auto* const loop = wxEventLoopBase::GetActive();
        loop->YieldFor(wxEVT_CATEGORY_ALL);
        wxTheApp->ProcessIdle();
        if (watch.Time() < milliseconds)
            wxMilliSleep(2);
    } while (watch.Time() < milliseconds);
}

bool PumpUntil(std::function<bool()> const& condition, int milliseconds)
{
    wxStopWatch watch;
    while (!condition())
    {
        if (watch.Time() > milliseconds)
            return false;
        Pump(5);
    }
    return true;
}

void ClickAt(wxWindow* window, wxPoint const& inClient, int button)
{
    wxUIActionSimulator simulator;
    simulator.MouseMove(window->ClientToScreen(inClient));
    Pump(30);
    simulator.MouseClick(button);
    Pump(60);
}

void Click(wxWindow* window)
{
    auto const size = window->GetClientSize();
    ClickAt(window, wxPoint(size.x / 2, size.y / 2));
}

void Press(int keyCode, int modifiers)
{
    wxUIActionSimulator().Char(keyCode, modifiers);
    Pump(40);
}

void TypeText(char const* text)
{
    wxUIActionSimulator().Text(text);
    Pump(60);
}

wxImage Photograph(wxWindow* window)
{
    Pump(30);
    // The window manager places windows where it likes; ClientToScreen asks the server for the truth.
    wxPoint const inWindow = window->IsTopLevel() ? wxPoint() : window->GetClientAreaOrigin();
    wxSize const size = window->IsTopLevel() ? window->GetClientSize() : window->GetSize();
    wxRect const area(window->ClientToScreen(-inWindow), size);
    // Another program takes the picture: what this process reads back of the screen may be a copy
    // that the drawing library kept from an earlier time.
    wxString const file = wxFileName::CreateTempFileName("zenqo-photograph");
    wxString const command = wxString::Format("import -silent -window root -crop %dx%d+%d+%d +repage png24:%s",
                                              area.width, area.height, area.x, area.y, file);
    wxImage image;
    if (std::system(command.utf8_str()) == 0)
        image.LoadFile(file, wxBITMAP_TYPE_PNG);
    wxRemoveFile(file);
    return image;
}

void Keep(wxImage const& photograph, wxString const& name)
{
    wxString folder = ".";
    wxGetEnv("ZENQO_TEST_OUTPUT", &folder);
    wxFileName::Mkdir(folder, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    photograph.SaveFile(folder + "/" + name + ".png", wxBITMAP_TYPE_PNG);
}
