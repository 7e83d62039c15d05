#include <catch2/catch.hpp>

#include <cstdio>
#include <iostream>

#include <wx/clipbrd.h>
#include <wx/menu.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include "console/ConsoleFixture.h"

namespace
{
/// A text control alone on a window; it counts the keys that reach the window's frame.
struct TextOnStage
{
    TextOnStage() : text(new MainTextCtrl(stage.Frame()))
    {
        stage.Fill(text);
        text->SetFocus();
        Pump();
    }

    /// Hands the control a key and tells whether it let it go on.
    bool LetsPass(int key, int modifiers)
    {
        wxKeyEvent event(wxEVT_KEY_DOWN);
        event.m_keyCode = key;
        event.SetControlDown((modifiers & wxMOD_CONTROL) != 0);
        event.SetShiftDown((modifiers & wxMOD_SHIFT) != 0);
        event.SetAltDown((modifiers & wxMOD_ALT) != 0);
        event.SetMetaDown((modifiers & wxMOD_META) != 0);
        text->ProcessShortcuts(event);
        return event.GetSkipped();
    }

    Stage stage;
    MainTextCtrl* text;
};

/// What another program reads from the clipboard while we serve it.
std::string ReadByAnotherProgram()
{
    std::FILE* const pipe = popen("timeout 5 xclip -selection clipboard -o 2>&1", "r");
    REQUIRE(pipe);
    int const fd = fileno(pipe);
    std::string output;
    bool open = true;
    PumpUntil(
        [&]
        {
            fd_set set;
            FD_ZERO(&set);
            FD_SET(fd, &set);
            timeval wait{0, 1000};
            char buffer[4096];
            if (select(fd + 1, &set, nullptr, nullptr, &wait) > 0)
            {
                auto const got = read(fd, buffer, sizeof buffer);
                open = got > 0;
                if (open)
                    output.append(buffer, static_cast<std::size_t>(got));
            }
            return !open;
        },
        6000);
    pclose(pipe);
    return output;
}

void SetClipboard(char const* text)
{
    REQUIRE(wxTheClipboard->Open());
    wxTheClipboard->SetData(new wxTextDataObject(text));
    wxTheClipboard->Close();
}
} // namespace

TEST_CASE("the control is read-only rich text without a border")
{
    TextOnStage on;
    CHECK(on.text->GetWindowStyle()
          == (wxTE_MULTILINE | wxTE_READONLY | wxTE_RICH2 | wxTE_NOHIDESEL | wxTE_DONTWRAP | wxBORDER_NONE));
    CHECK(on.text->GetWindowStyle() == 0x4020A030);
    CHECK_FALSE(on.text->IsEditable());
    CHECK(on.text->GetValue() == "");
    Stage plain;
    CHECK((new MainTextCtrl(plain.Frame()))->GetSize().x == 600);
}

TEST_CASE("the four keys with Ctrl are served, every other one goes on")
{
    TextOnStage on;
    on.text->AppendText("some text");
    CHECK_FALSE(on.LetsPass('A', wxMOD_CONTROL));
    CHECK(on.text->GetStringSelection() == "some text");
    CHECK_FALSE(on.LetsPass('C', wxMOD_CONTROL));
    CHECK(ReadByAnotherProgram() == "some text");
    CHECK_FALSE(on.LetsPass('T', wxMOD_CONTROL));
    CHECK(ReadByAnotherProgram() == "some text\n");
    CHECK_FALSE(on.LetsPass('L', wxMOD_CONTROL));
    CHECK(on.text->GetValue() == "");
    CHECK_FALSE(on.LetsPass('L', wxMOD_CONTROL));
    CHECK(on.LetsPass('X', wxMOD_CONTROL));
    CHECK(on.LetsPass('S', wxMOD_CONTROL));
    CHECK(on.LetsPass(WXK_HOME, wxMOD_CONTROL));
}

TEST_CASE("keys without Ctrl or Alt alone are swallowed")
{
    TextOnStage on;
    for (int const key : {int('A'), int('L'), int(WXK_UP), int(WXK_PAGEDOWN), int(WXK_HOME), int(WXK_END),
                          int(WXK_TAB), int(WXK_F1)})
    {
        CAPTURE(key);
        CHECK_FALSE(on.LetsPass(key, wxMOD_NONE));
        CHECK_FALSE(on.LetsPass(key, wxMOD_SHIFT));
        CHECK_FALSE(on.LetsPass(key, wxMOD_META));
        CHECK_FALSE(on.LetsPass(key, wxMOD_CONTROL | wxMOD_SHIFT));
        CHECK_FALSE(on.LetsPass(key, wxMOD_CONTROL | wxMOD_ALT));
        CHECK_FALSE(on.LetsPass(key, wxMOD_ALT | wxMOD_SHIFT));
    }
}

TEST_CASE("Alt with any key but L goes on")
{
    TextOnStage on;
    CHECK(on.LetsPass('X', wxMOD_ALT));
    CHECK(on.LetsPass(WXK_LEFT, wxMOD_ALT));
    CHECK_FALSE(on.LetsPass('L', wxMOD_ALT));
}

TEST_CASE("Ctrl+Shift+C neither copies nor reaches the parent")
{
    TextOnStage on;
    int reached = 0;
    on.stage.Frame()->Bind(wxEVT_CHAR_HOOK,
                           [&](wxKeyEvent& event)
                           {
                               event.Skip();
                           });
    on.stage.Frame()->Bind(wxEVT_KEY_DOWN, [&](wxKeyEvent&) { ++reached; });
    SetClipboard("untouched");
    on.text->AppendText("some text");
    on.text->SetSelection(-1, -1);
    Press('C', wxMOD_CONTROL | wxMOD_SHIFT);
    CHECK(reached == 0);
    CHECK(ReadByAnotherProgram() == "untouched");
}

TEST_CASE("real keys copy, copy as TeX, select all and clear")
{
    TextOnStage on;
    on.text->AppendText("a\tb\nc\td");
    Press('A', wxMOD_CONTROL);
    CHECK(on.text->GetStringSelection() == "a\tb\nc\td");
    Press('C', wxMOD_CONTROL);
    CHECK(ReadByAnotherProgram() == "a\tb\nc\td");
    Press('T', wxMOD_CONTROL);
    CHECK(ReadByAnotherProgram() == "\\begin{tabular}{lr}\na&b\\\\\nc&d\\\\\n\\end{tabular}\n\\newline\n");
    Press('L', wxMOD_CONTROL);
    CHECK(on.text->GetValue() == "");
}

TEST_CASE("typing, deleting and moving with real keys change nothing")
{
    TextOnStage on;
    on.text->AppendText("result");
    on.text->SetInsertionPoint(2);
    TypeText("abc");
    for (int const key : {int(WXK_BACK), int(WXK_DELETE), int(WXK_RETURN), int(WXK_END), int(WXK_LEFT)})
        Press(key);
    CHECK(on.text->GetValue() == "result");
    CHECK(on.text->GetInsertionPoint() == 2);
}

TEST_CASE("a right press opens the menu of three and keeps the selection")
{
    TextOnStage on;
    on.text->AppendText("first line\nsecond\tline");
    on.text->SetSelection(0, 5);

    std::vector<std::pair<int, wxString>> items;
    wxTimer close;
    close.Bind(wxEVT_TIMER, [](wxTimerEvent&) { wxUIActionSimulator().Char(WXK_ESCAPE); });
    on.text->Bind(wxEVT_MENU_OPEN,
                  [&](wxMenuEvent& event)
                  {
                      for (auto* const item : event.GetMenu()->GetMenuItems())
                          items.emplace_back(item->GetId(), item->GetItemLabel());
                      close.StartOnce(200);
                  });
    ClickAt(on.text, wxPoint(60, 60), wxMOUSE_BTN_RIGHT);
    CHECK(PumpUntil([&] { return !items.empty() && !close.IsRunning(); }));
    Pump(300);

    REQUIRE(items.size() == 3);
    CHECK(items[0] == std::make_pair(6000, wxString("Clear console\tCtrl+L")));
    CHECK(items[1] == std::make_pair(6001, wxString("Copy selection as text\tCtrl+C")));
    CHECK(items[2] == std::make_pair(6002, wxString("Copy selection as TeX\tCtrl+T")));
    CHECK(on.text->GetStringSelection() == "first");
}

TEST_CASE("the menu's commands act on the selection")
{
    TextOnStage on;
    on.text->AppendText("50%\tx_1");
    on.text->SetSelection(-1, -1);
    auto const choose = [&](int id)
    {
        wxCommandEvent event(wxEVT_MENU, id);
        on.text->GetEventHandler()->ProcessEvent(event);
    };
    choose(6001);
    CHECK(ReadByAnotherProgram() == "50%\tx_1");
    choose(6002);
    CHECK(ReadByAnotherProgram() == "\\begin{tabular}{lr}\n50\\%&x\\_1\\\\\n\\end{tabular}\n\\newline\n");
    choose(6000);
    CHECK(on.text->GetValue() == "");
}

TEST_CASE("the export takes the selection alone, also from the middle of a line")
{
    TextOnStage on;
    on.text->AppendText("label\t1\t2\nlabel\t3\t4\nplain");
    on.text->SetSelection(6, 18);
    on.text->ExportAsTeX();
    // The first line of the selection is "1<tab>2" with one tab, the second "label<tab>3" with one.
    CHECK(on.text->GetStringSelection() == "1\t2\nlabel\t3\t");
    on.text->SetSelection(6, 17);
    on.text->ExportAsTeX();
    CHECK(ReadByAnotherProgram()
          == "\\begin{tabular}{lr}\n1&2\\\\\nlabel&3\\\\\n\\end{tabular}\n\\newline\n");
}

TEST_CASE("nothing selected leaves the clipboard alone")
{
    TextOnStage on;
    SetClipboard("untouched");
    on.text->AppendText("a\tb");
    on.text->SetSelection(1, 1);
    on.text->ExportAsTeX();
    CHECK(ReadByAnotherProgram() == "untouched");
}

TEST_CASE("a clipboard that is open elsewhere ends the export silently")
{
    TextOnStage on;
    SetClipboard("untouched");
    on.text->AppendText("a\tb");
    on.text->SetSelection(-1, -1);
    REQUIRE(wxTheClipboard->Open());
    on.text->ExportAsTeX();
    wxTheClipboard->Close();
    CHECK(ReadByAnotherProgram() == "untouched");
}

TEST_CASE("text outside ASCII goes out as TeX as it stands")
{
    TextOnStage on;
    on.text->AppendText(wxString::FromUTF8("\xCE\xB2\t\xE2\x88\x92\x31"));
    on.text->SetSelection(-1, -1);
    on.text->ExportAsTeX();
    CHECK(ReadByAnotherProgram()
          == "\\begin{tabular}{lr}\n\xCE\xB2&\xE2\x88\x92\x31\\\\\n\\end{tabular}\n\\newline\n");
}

TEST_CASE("a selection over a console rule holds a line of blanks and no hline")
{
    ConsoleOnStage on;
    on.console->PrintOnConsole(std::string("a\tb\n"));
    on.console->PrintOnConsoleLine();
    on.console->PrintOnConsole(std::string("c\td\n"));
    on.text->SetSelection(-1, -1);
    on.text->ExportAsTeX();
    CHECK(ReadByAnotherProgram()
          == "\\begin{tabular}{lr}\na&b\\\\\n\\end{tabular}\n\\newline\n" + std::string(92, ' ')
                 + "\n\\begin{tabular}{lr}\nc&d\\\\\n\\end{tabular}\n\\newline\n");
}

TEST_CASE("a block streamed into the control is appended whole")
{
    TextOnStage on;
    std::ostream stream(on.text);
    stream << "\xCE\xB2 = " << 1.5 << std::endl << std::string(3, 'x');
    CHECK(on.text->GetValue() == wxString::FromUTF8("\xCE\xB2 = 1.5\nxxx"));
}
