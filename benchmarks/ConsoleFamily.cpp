// How long the console takes for its prints.

#include <random>
#include <sstream>

#include <wx/frame.h>
#include <wx/textctrl.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "common/Text.h"
#include "console/ZenqoConsole.h"
#include "engine/Globals.h"

namespace benchmarks
{
namespace
{
constexpr int PRINTS = 10000;
constexpr int PRINTS_A_ROUND = 250;
constexpr int MAX_LINES = 600;

wxColour const COLOUR(30, 30, 180);
std::string const LINE = "a line of a sampler's progress, 12345 of 20000 draws\n";

/// A modest window: each print paints all of it.
template <class Control>
class Window
{
public:
    explicit Window(wxPoint const& place)
        : m_frame(new wxFrame(nullptr, wxID_ANY, "Prints", place, wxSize(400, 260))),
          m_control(new Control(m_frame))
    {
        m_frame->Show();
        Settle();
    }
    ~Window() { m_frame->Destroy(); }

    Control* operator->() const { return m_control; }

private:
    wxFrame* m_frame;
    Control* m_control;
};

/// A text control like the console's, and the bare calls of a print.
class BareText : public wxTextCtrl
{
public:
    explicit BareText(wxWindow* parent)
        : wxTextCtrl(parent, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                     wxTE_MULTILINE | wxTE_READONLY | wxTE_RICH2 | wxTE_NOHIDESEL | wxTE_DONTWRAP
                         | wxBORDER_NONE)
    {
        SetFont(wxFont(9, wxFONTFAMILY_MODERN, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL));
        m_attr.SetFont(GetFont());
        SetDefaultStyle(m_attr);
        m_attr.SetTextColour(COLOUR);
    }

    void Print(std::string const& text)
    {
        SetInsertionPointEnd();
        long const from = GetInsertionPoint();
        AppendText(zenqo::ToWide(text));
        SetStyle(from, GetInsertionPoint(), m_attr);

        int const excess = GetNumberOfLines() - MAX_LINES;
        if (excess > 0)
        {
            long length = 0;
            for (int i = 0; i <= excess - 2; ++i)
                length += GetLineLength(i) + 1;
            Remove(0, length);
            SetInsertionPointEnd();
            ShowPosition(GetInsertionPoint());
        }
        Update();
        ScrollLines(GetNumberOfLines());
    }

private:
    wxTextAttr m_attr;
};

template <class Print>
Measurement Printing(Print const& print)
{
    return [print]
    {
        return Seconds(
            [&]
            {
                for (int i = 0; i < PRINTS_A_ROUND; ++i)
                    print();
            });
    };
}

/// The first 10,000 prints beside as many bare ones, and beside the second 10,000 of a console that
/// has had its first.
void MeasurePrints(Table& table)
{
    Claim const against{"console, 10,000 prints: against the bare calls", 1.5};
    // The bound is one; the rest is for the machine.
    Claim const growth{"console, second 10,000 prints: against the first", 1.1};
    if (!table.Wants(against.name) && !table.Wants(growth.name))
        return;

    Window<ZenqoConsole> fresh({20, 40});
    Window<ZenqoConsole> used({450, 40});
    Window<BareText> bare({880, 40});
    auto const printFresh = Printing([&] { fresh->PrintOnConsole(LINE, COLOUR); });
    auto const printUsed = Printing([&] { used->PrintOnConsole(LINE, COLOUR); });
    auto const printBare = Printing([&] { bare->Print(LINE); });

    for (int done = 0; done < PRINTS; done += PRINTS_A_ROUND)
        printUsed();
    Rounds againstBare;
    Rounds secondAgainstFirst;
    for (int done = 0; done < PRINTS; done += PRINTS_A_ROUND)
    {
        againstBare.Take(printFresh, printBare);
        secondAgainstFirst.Take(printUsed, [&] { return againstBare.measured.back(); });
    }
    table.Add(against, againstBare);
    table.Add(growth, secondAgainstFirst);
}

/// A full console's worth of matrix, and its text at once: as the call alone, which leaves the
/// painting to the event loop, and painted as the console's is.
void MeasureMatrix(Table& table)
{
    std::mt19937 generator(1);
    std::normal_distribution<double> normal;
    Eigen::MatrixXd const matrix = Eigen::MatrixXd::NullaryExpr(600, 5, [&] { return normal(generator); });
    std::ostringstream text;
    text << matrix.format(Zenqo_SYSTEM_NAMESPACE::GLOBAL_IOFormatConsole) << "\n\n";
    wxString const wide = zenqo::ToWide(text.str());

    Window<ZenqoConsole> console({20, 40});
    Window<BareText> bare({450, 40});
    auto const print = [&]
    {
        console->ClearConsole();
        Settle();
        return Seconds([&] { console->PrintOnConsole(matrix); });
    };
    auto const append = [&](bool painted)
    {
        bare->Clear();
        Settle();
        return Seconds(
            [&]
            {
                bare->AppendText(wide);
                if (painted)
                    bare->Update();
            });
    };
    table.Compare({"console, a matrix of 600 x 5: against one AppendText", 2.0}, print,
                  [&] { return append(false); }, 25);
    table.Compare({"console, a matrix of 600 x 5: against it painted", 2.0}, print,
                  [&] { return append(true); }, 25);
}
} // namespace

void MeasureConsole(Table& table)
{
    MeasurePrints(table);
    MeasureMatrix(table);
}
} // namespace benchmarks
