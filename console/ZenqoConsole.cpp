#include "console/ZenqoConsole.h"

#include <algorithm>
#include <cmath>
#include <iostream>

#include <wx/dcscreen.h>
#include <wx/sizer.h>

#include "common/DroppedFile.h"
#include "common/MatrixText.h"
#include "common/ScriptEvent.h"
#include "common/Text.h"
#include "console/MainTextCtrl.h"
#include "engine/Engine.h"

namespace
{
wxColour const BACKGROUND(254, 254, 254);

/// The characters between two tab stops.
constexpr double TAB_COLUMNS = 8.0;

/// A rule is 23 times four characters wide.
constexpr int RULE_PIECES = 23;

/// Leads `std::cout` elsewhere for as long as it lives.
class CoutRedirect
{
public:
    explicit CoutRedirect(std::streambuf* target) : m_original(std::cout.rdbuf(target)) {}
    ~CoutRedirect() { std::cout.rdbuf(m_original); }
    CoutRedirect(CoutRedirect const&) = delete;
    CoutRedirect& operator=(CoutRedirect const&) = delete;

private:
    std::streambuf* m_original;
};

std::string Repeat(char const* piece, int times)
{
    std::string text;
    for (int i = 0; i < times; ++i)
        text += piece;
    return text;
}

wxFont ConsoleFont(int size, wxFontWeight weight = wxFONTWEIGHT_NORMAL,
                   wxFontStyle style = wxFONTSTYLE_NORMAL)
{
    return wxFont(size, wxFONTFAMILY_MODERN, style, weight);
}

/// The product's name in block letters; its last line is the tail of the Z, and has no line end.
char const* const BANNER =
    "          ________  _______  __    _    _____     _____\n"
    "          |____   / |  ____| |  \\ | |  /  _  \\   /  _  \\\n"
    "              /  /  | |__    |   \\| |  | | | |   | | | |\n"
    "             /  /   |  __|   | |\\   |  | | | |   | | | |\n"
    "            /  /___ | |____  | | \\  |  | |_\\ \\   | |_| |\n"
    "           /______/ |______| |_|  \\_|  \\___\\_\\   \\_____/\n"
    "          /     ";

char const* const VERSION = "2.5";
} // namespace

ZenqoConsole::ZenqoConsole(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxTAB_TRAVERSAL | wxBORDER_NONE),
      m_gui(Zenqo_SYSTEM_NAMESPACE::RUN_GUI)
{
    SetBackgroundColour(BACKGROUND);

    m_text = new MainTextCtrl(this);
    m_text->DragAcceptFiles(true);
    m_text->Bind(wxEVT_DROP_FILES, &ZenqoConsole::OnDropFiles, this);

    m_fontSize = 9;
    m_text->SetFont(ConsoleFont(m_fontSize));
    m_text->SetBackgroundColour(BACKGROUND);

    m_maxLines = 600;
    m_attrDefault.SetFont(ConsoleFont(m_fontSize));
    m_attrDefault.SetBackgroundColour(BACKGROUND);

    // The strikethrough over blanks is the line. This desktop's text engine draws none over blanks,
    // but it underlines them, so the underline is what the user sees.
    wxFont ruleFont = ConsoleFont(m_fontSize, wxFONTWEIGHT_BOLD);
    ruleFont.SetStrikethrough(true);
    ruleFont.SetUnderlined(true);
    m_attrRule.SetFont(ruleFont);
    m_attrRule.SetTextColour(wxColour(30, 30, 180));
    m_attrRule.SetBackgroundColour(wxColour(253, 253, 254));

    OnSetTabStops();

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_text, 1, wxEXPAND | wxLEFT, 10);
    SetSizer(sizer);
    Layout();
}

ZenqoConsole::~ZenqoConsole() = default;

void ZenqoConsole::PrintOnConsole(std::string const& text) { PrintPlain(text); }

void ZenqoConsole::PrintOnConsole(int const& value) { PrintPlain(value); }

void ZenqoConsole::PrintOnConsole(double const& value) { PrintPlain(value); }

void ZenqoConsole::PrintOnConsole(wxString const& text)
{
    if (!m_gui)
    {
        std::cout << zenqo::ToNarrow(text);
        return;
    }
    m_text->SetInsertionPointEnd();
    m_text->AppendText(text);
    AfterPrint();
}

void ZenqoConsole::PrintOnConsole(Eigen::MatrixXd const& matrix)
{
    // Formatted first and written at once: a text control takes one long text far faster than many
    // short ones.
    Eigen::IOFormat const format = Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatConsole;
    bool const cut = m_gui && matrix.rows() > m_maxLines;
    Eigen::Index const first = cut ? matrix.rows() - m_maxLines : 0;
    std::string const text
        = zenqo::MatrixText(matrix.block(first, 0, matrix.rows() - first, matrix.cols()), format);
    Print({{text + "\n\n", nullptr}}, Flush::Yes);
}

void ZenqoConsole::PrintOnConsoleNewLine() { Print({{"\n", nullptr}}); }

void ZenqoConsole::ClearConsole()
{
    if (!m_gui)
        return;
    m_text->Clear();
    m_text->Update();
    AfterPrint();
}

void ZenqoConsole::PrintOnConsole(std::string const& text, wxColour colour)
{
    wxTextAttr const attr = Coloured(colour);
    Print({{text, &attr}}, Flush::Yes);
}

void ZenqoConsole::PrintOnConsoleBG(std::string const& text, wxColour colour)
{
    wxTextAttr attr = Coloured(wxColour(0, 0, 0));
    attr.SetBackgroundColour(colour);
    Print({{text, &attr}});
}

void ZenqoConsole::PrintOnConsoleBF(std::string const& text, wxColour colour)
{
    wxTextAttr const attr = Styled(colour, wxFONTWEIGHT_BOLD);
    Print({{text, &attr}});
}

void ZenqoConsole::PrintOnConsoleError(std::string const& text)
{
    wxColour const red(225, 0, 0);
    wxTextAttr const prefix = Styled(red, wxFONTWEIGHT_BOLD);
    wxTextAttr const message = Styled(red, wxFONTWEIGHT_NORMAL);
    Print({{"\n\nERROR: ", &prefix}, {text + "\n", &message}}, Flush::Yes);
}

void ZenqoConsole::PrintOnConsoleWarning(std::string const& text)
{
    wxColour const green(10, 120, 10);
    wxTextAttr const prefix = Styled(green, wxFONTWEIGHT_BOLD);
    wxTextAttr const message = Styled(green, wxFONTWEIGHT_NORMAL);
    Print({{"\n\nWARNING: ", &prefix}, {BreakLongMassage(text, true) + "\n", &message}}, Flush::Yes);
}

void ZenqoConsole::PrintOnConsoleCode(std::string const& text)
{
    wxTextAttr const attr = Styled(wxColour(0, 40, 0), wxFONTWEIGHT_NORMAL);
    Print({{"\n >> " + text + "\n\n", &attr}}, Flush::Yes);
}

void ZenqoConsole::PrintOnConsoleLine() { PrintRule(m_attrRule); }

void ZenqoConsole::PrintOnConsoleLine(wxColour colour)
{
    wxTextAttr attr = m_attrRule;
    attr.SetTextColour(colour);
    PrintRule(attr);
}

void ZenqoConsole::PrintOnConsoleModel(std::string const& text)
{
    wxTextAttr const attr = Styled(wxColour(80, 5, 5), wxFONTWEIGHT_BOLD);
    Print({{"\n\n" + text, &attr}});
}

void ZenqoConsole::PrintOnConsoleModel(std::string const& title, std::string const& detail)
{
    // Standard output gets the detail as it was passed; only the control shows the long form.
    wxTextAttr const titleAttr = Styled(wxColour(80, 5, 5), wxFONTWEIGHT_BOLD);
    wxTextAttr const detailAttr = Styled(wxColour(0, 80, 0), wxFONTWEIGHT_BOLD);
    Print({{"\n\n" + title, &titleAttr},
           {m_gui ? ExpandContractStringLong(detail) : detail, &detailAttr}});
}

void ZenqoConsole::PrintOnConsoleTerminal(std::string const& text)
{
    wxTextAttr const attr = Styled(wxColour(0, 0, 80), wxFONTWEIGHT_LIGHT);
    Print({{text, &attr}});
}

void ZenqoConsole::PrintOnStartup()
{
    if (!m_gui)
    {
        std::cout << BANNER << "Zenqo Statistical Workbench  " << "\n                Running Version " << VERSION
                  << std::endl
                  << std::endl
                  << std::endl;
        return;
    }

    wxColour const brown(96, 16, 16);
    wxTextAttr const name = Styled(brown, wxFONTWEIGHT_NORMAL, 32);
    wxTextAttr const title = Styled(brown, wxFONTWEIGHT_BOLD, 3, wxFONTSTYLE_ITALIC);
    wxTextAttr const version = Styled(wxColour(0, 80, 0), wxFONTWEIGHT_BOLD, 3, wxFONTSTYLE_ITALIC);

    CoutRedirect const redirect(m_text);
    WriteSpan({"Zenqo ", &name});
    WriteSpan({"\n           Zenqo Statistical Workbench\n           ", &title});
    WriteSpan({std::string("Running Version ") + VERSION + "\n\n\n", &version});
    m_lineCount = m_text->GetNumberOfLines();
}

void ZenqoConsole::PrintOnExit(std::string const&)
{
    wxTextAttr const attr = Styled(wxColour(80, 10, 10), wxFONTWEIGHT_BOLD, 1);
    m_text->SetInsertionPointEnd();
    CoutRedirect const redirect(m_text);
    WriteSpan({".", &attr});
}

void ZenqoConsole::SetLastPointVisible()
{
    int const lineHeight = m_text->GetCharHeight();
    int const visible = m_text->GetClientSize().GetHeight() / lineHeight;
    long const position = m_text->XYToPosition(0, std::max(0, m_text->GetNumberOfLines() - visible));
    m_text->ShowPosition(position);
    // This toolkit scrolls no further than it must, which leaves that line at the bottom.
    m_text->ShowPosition(m_text->GetLastPosition());
}

void ZenqoConsole::OnSetTabStops()
{
    // Stops are in tenths of a millimetre.
    double const mmPerPixel = 25.4 / wxScreenDC().GetPPI().x;
    int const charWidth = m_text->GetTextExtent(" ").x;
    double const tabWidth = charWidth * TAB_COLUMNS * 10.0 * mmPerPixel;
    // The division by mmPerPixel is on purpose: it yields more stops than the control is wide, which
    // does no harm.
    int const count = static_cast<int>(std::round(m_text->GetSize().x * 10.0 / mmPerPixel / tabWidth));

    wxArrayInt tabs;
    for (int i = 1; i <= count; ++i)
        tabs.Add(static_cast<int>(std::round(i * tabWidth)));
    m_attrDefault.SetTabs(tabs);
    m_attrRule.SetTabs(tabs);
    m_text->SetDefaultStyle(m_attrDefault);
}

void ZenqoConsole::OnDropFiles(wxDropFilesEvent& event)
{
    zenqo::DropRule rule;
    rule.extensions.Add("zws");
    wxString const single = "\n\nDrag and drop only single files.";
    rule.folderText = "Zenqo' panes cannot accept folders dropped\nto them." + single;
    rule.manyText = "Zenqo' panes cannot accept mutliple files\ndropped to them." + single;
    rule.extensionText = "Zenqo' main window can only accept Zenqo\nworkspace files (\".zws\").";

    // The path goes into the command as it is, without any escaping.
    if (auto const path = zenqo::TakeDroppedFile(event, rule, this))
        zenqo::SendScript(this, "load(\"" + *path + "\");");
}

void ZenqoConsole::FormatText(long from, long to, wxTextAttr& attr) { m_text->SetStyle(from, to, attr); }

void ZenqoConsole::AfterPrint()
{
    int const lines = m_text->GetNumberOfLines();
    bool const trim = lines > m_maxLines;
    if (trim)
    {
        int const excess = lines - m_maxLines;
        long length = 0;
        for (int i = 0; i <= excess - 2; ++i)
            length += m_text->GetLineLength(i) + 1;
        m_text->Remove(0, length);
        m_text->SetInsertionPointEnd();
        m_text->ShowPosition(m_text->GetInsertionPoint());
    }
    m_lineCount = m_text->GetNumberOfLines();
    m_text->Update();
    m_text->ScrollLines(m_lineCount);
    if (trim)
    {
        // Lines that move up while the view scrolls would otherwise leave the last one drawn twice.
        m_text->Refresh();
        m_text->Update();
    }
}

void ZenqoConsole::Print(std::initializer_list<Span> spans, Flush flush)
{
    if (!m_gui)
    {
        for (Span const& span : spans)
            std::cout << span.text;
        if (flush == Flush::Yes)
            std::cout.flush();
        return;
    }
    m_text->SetInsertionPointEnd();
    CoutRedirect const redirect(m_text);
    for (Span const& span : spans)
        WriteSpan(span);
    AfterPrint();
}

template <class Value> void ZenqoConsole::PrintPlain(Value const& value)
{
    if (!m_gui)
    {
        std::cout << value;
        return;
    }
    m_text->SetInsertionPointEnd();
    CoutRedirect const redirect(m_text);
    std::cout << value;
    AfterPrint();
}

void ZenqoConsole::WriteSpan(Span const& span)
{
    long const from = m_text->GetInsertionPoint();
    std::cout << span.text;
    long const to = m_text->GetInsertionPoint();
    if (span.attr)
    {
        wxTextAttr attr = *span.attr;
        FormatText(from, to, attr);
    }
}

wxTextAttr ZenqoConsole::Coloured(wxColour const& colour) const
{
    wxTextAttr attr = m_attrDefault;
    attr.SetTextColour(colour);
    return attr;
}

wxTextAttr ZenqoConsole::Styled(wxColour const& colour, wxFontWeight weight, int sizeChange,
                                wxFontStyle style) const
{
    wxTextAttr attr = Coloured(colour);
    attr.SetFont(ConsoleFont(m_fontSize + sizeChange, weight, style));
    return attr;
}

void ZenqoConsole::PrintRule(wxTextAttr const& attr)
{
    if (m_gui)
        Print({{Repeat("    ", RULE_PIECES) + "\n", &attr}});
    else
        Print({{Repeat("----", RULE_PIECES) + "\n", nullptr}}, Flush::Yes);
}
