#include "workbench/app/StartPage.h"

#include <wx/settings.h>

namespace workbench
{
namespace
{
char const* const PAGE = R"(
<html><body bgcolor="%s" text="%s" link="%s">
<h2>Zenqo Workbench</h2>
<p>Bayesian econometrics by posterior simulation. Whatever you do with the mouse here is also a line
of script: the console echoes it, and <i>Script &gt; Save session as script</i> keeps it.</p>
<h3>Begin with data that is here</h3>
<p><a href="sample"><b>Open the sample workspace</b></a> with all of the following, or import one of them:</p>
<ul>
<li><a href="longley">longley</a>: employment in the United States 1947&ndash;1962, seven variables (J. W. Longley 1967,
by way of the NIST Statistical Reference Datasets)</li>
<li><a href="airquality">airquality</a>: air quality in New York, May to September 1973, with missing values
(New York State Department of Conservation, National Weather Service)</li>
<li><a href="cars">cars</a>: 32 cars of 1973&ndash;74, with their names as text (Motor Trend 1974)</li>
</ul>
<h3>Bring your own</h3>
<ul>
<li>Drop a <tt>.csv</tt> or <tt>.txt</tt> file on the <b>Datasets</b> tree at the left, or use
<i>Data &gt; Import</i>.</li>
<li>Drop a workspace file (<tt>.zws</tt>) on the <b>Console</b>, or use <i>File &gt; Open workspace</i>.</li>
<li>The <b>Data</b> menu makes variables, sorts, summarizes and plots.</li>
<li>The <b>Model</b> menu estimates a linear regression, and then tests, compares, forecasts and predicts with
it.</li>
<li>Select a table on the console and press <b>Ctrl+T</b>: it is on the clipboard as TeX.</li>
</ul>
</body></html>)";

wxString Css(wxSystemColour colour)
{
    return wxSystemSettings::GetColour(colour).GetAsString(wxC2S_HTML_SYNTAX);
}
} // namespace

StartPage::StartPage(wxWindow* parent, std::string const& samples,
                     std::function<void(std::string const&)> run)
    : wxHtmlWindow(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxHW_SCROLLBAR_AUTO),
      m_samples(samples), m_run(std::move(run))
{
    SetBorders(24);
    SetPage(wxString::Format(PAGE, Css(wxSYS_COLOUR_LISTBOX), Css(wxSYS_COLOUR_LISTBOXTEXT),
                             Css(wxSYS_COLOUR_HOTLIGHT)));
    Bind(wxEVT_HTML_LINK_CLICKED, &StartPage::OnLink, this);
}

void StartPage::OnLink(wxHtmlLinkEvent& event)
{
    std::string const name = event.GetLinkInfo().GetHref().ToStdString();
    if (name == "sample")
        m_run("load(\"" + m_samples + "/sample.zws\");");
    else
        m_run(name + " = import(\"" + m_samples + "/" + name + ".csv\", \",\");");
}
} // namespace workbench
