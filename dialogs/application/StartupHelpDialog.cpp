#include "dialogs/application/StartupHelpDialog.h"

#include <sstream>

#include <wx/checkbox.h>
#include <wx/html/htmlcell.h>
#include <wx/html/htmlwin.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/utils.h>

#include "common/FittedDialog.h"
#include "common/Text.h"

namespace
{
constexpr char SITE[] = "https://www.zenqo.example";

struct Tutorial
{
    char const* title;
    char const* anchor;
};

constexpr Tutorial TUTORIALS[] = {
    {"An overview of the Zenqo desktop", "desktopAnchor"},
    {"Importing, summarizing and plotting data", "dataAnchor"},
    {"Running models from the GUI", "modelsAnchor"},
    {"Working with code: The Zenqo script editor", "codeAnchor"},
    {"Working with Zenqo from the command shell", "batchAnchor"},
    {"Writing and executing Zenqo functions", "functionsAnchor"},
};

std::string Css(wxSystemColour colour)
{
    return zenqo::ToNarrow(wxSystemSettings::GetColour(colour).GetAsString(wxC2S_CSS_SYNTAX));
}

/// A paragraph of its own, lest the list below it counts as more of the text: its last line would be
/// justified too.
std::string Paragraph(std::string const& text)
{
    return "<div align=\"justify\"><p>" + text + "</p></div>\n";
}

std::string WelcomePage()
{
    std::ostringstream page;
    // The toolkit's own black and blue can't be read on the background of a dark theme.
    page << "<html>\n<body bgcolor=\"" << Css(wxSYS_COLOUR_LISTBOX) << "\" text=\""
         << Css(wxSYS_COLOUR_LISTBOXTEXT) << "\" link=\"" << Css(wxSYS_COLOUR_HOTLIGHT) << "\">\n"
         << "<h3 align=\"center\">Welcome to Zenqo!</h3>\n"
         << Paragraph("For a quick start, consider going through the online video tutorials:") << "<ol>\n";
    for (auto const& tutorial : TUTORIALS)
        page << "<li><a href=\"" << SITE << "/tutorials.html#" << tutorial.anchor << "\">" << tutorial.title
             << "</a></li>\n";
    page << "</ol>\n" << Paragraph("For a complete overview, consider:") << "<ul>\n"
         << "<li><p align=\"justify\">looking at the sample code files, located within the \"Samples\" "
            "folder, in the Zenqo installation directory, or</p></li>\n"
         << "<li><p align=\"justify\">reading the <a href=\"" << SITE
         << "/html_documentation.html\">online documentation.</a></p></li>\n</ul>\n</body>\n</html>";
    return page.str();
}
} // namespace

StartupHelpDialog::StartupHelpDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "Quick Start", wxDefaultPosition, wxDefaultSize,
               zenqo::TELLING_DIALOG_STYLE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const html = new wxHtmlWindow(this, wxID_ANY, wxDefaultPosition, wxSize(460, 330),
                                        wxHW_SCROLLBAR_AUTO | wxHW_NO_SELECTION | wxBORDER_SUNKEN,
                                        "htmlWindow");
    html->SetPage(zenqo::ToWide(WelcomePage()));
    auto const* const page = html->GetInternalRepresentation();
    html->SetSize(page->GetWidth(), page->GetHeight());
    sizer->Add(html, 1, wxLEFT | wxRIGHT | wxTOP, 10);
    sizer->Add(0, 2);

    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    sizer->Add(row, 0, wxEXPAND, 5);
    row->AddStretchSpacer();
    m_doNotShow = new wxCheckBox(this, wxID_ANY, "Do not show this dialog again");
    row->Add(m_doNotShow, 0, wxLEFT | wxRIGHT | wxBOTTOM, 5);
    zenqo::AddCloseRow(this, sizer, wxID_CANCEL);
    SetSizer(sizer);
    sizer->Fit(this);
    html->Bind(wxEVT_HTML_LINK_CLICKED, &StartupHelpDialog::OnLink, this);
}

bool StartupHelpDialog::GetCheckBoxState() const { return m_doNotShow->GetValue(); }

void StartupHelpDialog::OnLink(wxHtmlLinkEvent& event)
{
    wxLaunchDefaultBrowser(event.GetLinkInfo().GetHref());
}
