#pragma once

#include <initializer_list>
#include <string>

#include <Eigen/Core>
#include <wx/panel.h>
#include <wx/textctrl.h>

#include "engine/Export.h"

class MainTextCtrl;

/// The panel that shows the user's work: the banner, every echoed command, every result, warning and
/// error, and the horizontal rules between them. The one place through which a host writes to the user.
///
/// It has two modes, fixed at construction by `Zenqo_SYSTEM_NAMESPACE::RUN_GUI`. With the flag set it
/// writes to a text control, which keeps about the last 600 lines. With the flag clear the same calls
/// write plain text to standard output; the control exists all the same.
///
/// All text is narrow text in the locale's encoding or text of the toolkit. While a print lasts,
/// `std::cout` writes into the control, so prints belong on the GUI thread. No operation reports a
/// failure; an exception in a print leaves `std::cout` as it was.
class ZENQO_API ZenqoConsole : public wxPanel
{
public:
    explicit ZenqoConsole(wxWindow* parent);
    ~ZenqoConsole() override;

    /// Plain output, in the control's default style. Numbers are written as `std::cout` writes them.
    void PrintOnConsole(std::string const& text);
    void PrintOnConsole(int const& value);
    void PrintOnConsole(double const& value);
    void PrintOnConsole(wxString const& text);

    /// A matrix in the format `GLOBAL_IOFormatConsole`, and an empty line. The control is given the
    /// last 600 rows at most, standard output all of them.
    void PrintOnConsole(Eigen::MatrixXd const& matrix);

    /// One newline.
    void PrintOnConsoleNewLine();

    /// Empties the control. Does nothing without a window.
    void ClearConsole();

    /// Text in the given colour; black on a background of the given colour; bold in the given colour.
    void PrintOnConsole(std::string const& text, wxColour colour);
    void PrintOnConsoleBG(std::string const& text, wxColour colour);
    void PrintOnConsoleBF(std::string const& text, wxColour colour);

    /// "ERROR: " and the message as it comes, in red.
    void PrintOnConsoleError(std::string const& text);

    /// "WARNING: " and the message, broken into lines by `BreakLongMassage`, in green.
    void PrintOnConsoleWarning(std::string const& text);

    /// The echo of a command behind a prompt.
    void PrintOnConsoleCode(std::string const& text);

    /// A horizontal rule of 92 columns, blue or in the given colour.
    void PrintOnConsoleLine();
    void PrintOnConsoleLine(wxColour colour);

    /// The heading of a model.
    void PrintOnConsoleModel(std::string const& text);

    /// The heading of a model and its detail. The control shows the detail in the long form of
    /// `ExpandContractStringLong`, standard output as it comes.
    void PrintOnConsoleModel(std::string const& title, std::string const& detail);

    /// What an outside program says.
    void PrintOnConsoleTerminal(std::string const& text);

    /// The banner with name and version.
    void PrintOnStartup();

    /// One dot while the application shuts down, in the control in either mode. `text` is not used.
    void PrintOnExit(std::string const& text);

    /// Scrolls so that the last lines fill the view.
    void SetLastPointVisible();

    /// Computes the tab stops, eight characters apart, from font, screen and the control's width.
    /// The constructor calls it; a host may call it again after a resize.
    void OnSetTabStops();

    /// A file dropped on the control: one workspace file becomes a load command, sent to the host as
    /// `wxEVT_PRINT_AND_RUN`; anything else is refused with a warning.
    void OnDropFiles(wxDropFilesEvent& event);

    /// Gives the characters from `from` up to `to` the style `attr`.
    void FormatText(long from, long to, wxTextAttr& attr);

    /// Ends a print: trims the control to its line budget and scrolls to the last line.
    void AfterPrint();

private:
    /// A piece of text in one style; null leaves the control's default style.
    struct Span
    {
        std::string text;
        wxTextAttr const* attr;
    };

    enum class Flush
    {
        No,
        Yes
    };

    /// Writes the spans, in either mode.
    void Print(std::initializer_list<Span> spans, Flush flush = Flush::No);

    /// Writes a value as `std::cout` does, in the control's default style, in either mode.
    template <class Value> void PrintPlain(Value const& value);

    /// Writes a span at the end of the control. `std::cout` leads there already.
    void WriteSpan(Span const& span);

    /// A copy of the base style in another colour and font.
    wxTextAttr Coloured(wxColour const& colour) const;
    wxTextAttr Styled(wxColour const& colour, wxFontWeight weight, int sizeChange = 0,
                      wxFontStyle style = wxFONTSTYLE_NORMAL) const;

    void PrintRule(wxTextAttr const& attr);

    MainTextCtrl* m_text;
    wxTextAttr m_attrDefault;
    wxTextAttr m_attrRule;
    int m_fontSize;
    int m_maxLines;
    int m_lineCount = 0; ///< The control's lines after the last print; read by the scroll alone.
    bool m_gui;
};
