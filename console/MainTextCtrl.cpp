#include "console/MainTextCtrl.h"

#include <sstream>

#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/menu.h>
#include <wx/sizer.h>

#include "common/TexText.h"
#include "common/Text.h"

namespace
{
enum MenuId
{
    ID_CLEAR = 6000,
    ID_COPY = 6001,
    ID_TEX = 6002
};

/// The background of a horizontal rule (see ZenqoConsole).
wxColour const RULE_BACKGROUND(253, 253, 254);
} // namespace

MainTextCtrl::MainTextCtrl(wxWindow* parent)
    : wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxSize(600, -1),
                 wxTE_MULTILINE | wxTE_READONLY | wxTE_RICH2 | wxTE_NOHIDESEL | wxTE_DONTWRAP
                     | wxBORDER_NONE)
{
    Bind(wxEVT_RIGHT_DOWN, &MainTextCtrl::OnContextMenu, this);
    Bind(wxEVT_KEY_DOWN, &MainTextCtrl::ProcessShortcuts, this);
    Bind(wxEVT_MENU, &MainTextCtrl::OnClearConsole, this, ID_CLEAR);
    Bind(wxEVT_MENU, &MainTextCtrl::OnCopyConsole, this, ID_COPY);
    Bind(wxEVT_MENU, &MainTextCtrl::OnExportConsole, this, ID_TEX);
}

MainTextCtrl::~MainTextCtrl() = default;

void MainTextCtrl::OnContextMenu(wxMouseEvent&)
{
    // The keys behind the tabs are only shown: ProcessShortcuts serves them.
    wxMenu menu;
    menu.Append(ID_CLEAR, "Clear console\tCtrl+L");
    menu.Append(ID_COPY, "Copy selection as text\tCtrl+C");
    menu.Append(ID_TEX, "Copy selection as TeX\tCtrl+T");
    PopupMenu(&menu, wxDefaultPosition);
}

void MainTextCtrl::ProcessShortcuts(wxKeyEvent& event)
{
    int const modifiers = event.GetModifiers();
    int const key = event.GetKeyCode();

    if (modifiers == wxMOD_CONTROL)
    {
        switch (key)
        {
        case 'A': SetSelection(-1, -1); break;
        case 'C': Copy(); break;
        case 'L': Clear(); break;
        case 'T': ExportAsTeX(); break;
        default: event.Skip();
        }
    }

    if (modifiers == wxMOD_ALT && key != 'L')
        event.Skip();
}

void MainTextCtrl::OnClearConsole(wxCommandEvent&) { Clear(); }

void MainTextCtrl::OnCopyConsole(wxCommandEvent&) { Copy(); }

void MainTextCtrl::OnExportConsole(wxCommandEvent&) { ExportAsTeX(); }

void MainTextCtrl::ExportAsTeX()
{
    long from = 0;
    long to = 0;
    GetSelection(&from, &to);
    if (from >= to)
        return;

    long x = 0;
    long y = 0;
    PositionToXY(from, &x, &y);
    std::string const selection = zenqo::ToNarrow(GetRange(from, to));

    wxString const tex = zenqo::ToWide(zenqo::TextToTex(selection, FindRuleLines(selection, y)));
    wxClipboard* const clipboard = wxTheClipboard;
    if (clipboard->IsOpened() || !clipboard->Open())
        return;
    clipboard->SetData(new wxTextDataObject(tex));
    clipboard->Close();
}

std::vector<int> MainTextCtrl::FindRuleLines(std::string const& selection, long firstLine)
{
    // The attribute is never filled from the control, on purpose: its background is no colour, so
    // no line is taken for a rule, and a rule of the console goes out as the line of blanks it is.
    wxTextAttr const attr;
    std::vector<int> ruleLines;
    std::istringstream text(selection);
    int index = 0;
    for (std::string line; std::getline(text, line); ++index)
    {
        long const start = XYToPosition(0, firstLine + index);
        if (start >= 0 && attr.GetBackgroundColour() == RULE_BACKGROUND)
            ruleLines.push_back(index);
    }
    return ruleLines;
}

std::streamsize MainTextCtrl::xsputn(char const* text, std::streamsize count)
{
    AppendText(zenqo::ToWide(std::string(text, static_cast<std::size_t>(count))));
    return count;
}
