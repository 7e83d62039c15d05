// The menus of the workbench's window. What their entries do is in MainFrame.cpp.

#include "workbench/app/MainFrame.h"

#include <wx/menu.h>

#include "console/ZenqoConsole.h"
#include "dialogs/application/AboutZenqo.h"
#include "workbench/app/AnalysisForms.h"
#include "workbench/app/FigureWindow.h"
#include "workbench/app/ModelForm.h"
#include "workbench/app/OutsideForms.h"

namespace workbench
{
template <class Form>
void MainFrame::FillForm()
{
    if (!HasDatasets())
        return;
    Form form(this, &m_workspace.datasets);
    if (form.ShowModal() != wxID_OK)
        return;
    ShowPage(PAGE_CONSOLE);
    Run(form.Script());
}

void MainFrame::MakeMenus()
{
    auto* const bar = new wxMenuBar;
    MakeFileMenu(*bar);
    MakeEditMenu(*bar);
    MakeDataMenu(*bar);
    MakeModelMenu(*bar);
    MakeProgramsMenu(*bar);
    MakeScriptMenu(*bar);
    MakeViewMenu(*bar);
    MakeHelpMenu(*bar);
    SetMenuBar(bar);
}

template <class Action>
void MainFrame::AddEntry(wxMenu& menu, wxString const& label, wxString const& help, Action action)
{
    wxMenuItem* const item = menu.Append(wxID_ANY, label, help);
    Bind(
        wxEVT_MENU,
        [this, action](wxCommandEvent&)
        {
            if (!m_runner->IsBusy())
                action();
        },
        item->GetId());
    Bind(
        wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& event) { event.Enable(!m_runner->IsBusy()); },
        item->GetId());
}

void MainFrame::MakeFileMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    AddEntry(*menu, "&Open workspace...\tCtrl+O", "Replaces the workspace by that of a file",
             [this] { OpenWorkspace(); });
    AddEntry(*menu, "&Save workspace\tCtrl+S", "Saves all datasets, matrices and models",
             [this] { SaveWorkspace(); });
    AddEntry(*menu, "Save workspace &as...\tCtrl+Shift+S", "Saves the workspace in another file",
             [this] { SaveWorkspaceAs(); });
    menu->AppendSeparator();
    AddEntry(*menu, "&Quit\tCtrl+Q", "Closes the workbench", [this] { Close(); });
    bar.Append(menu, "&File");
}

void MainFrame::MakeEditMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    AddEntry(*menu, "&Copy\tCtrl+C", "Copies the selection of the console or the grid", [this] { EditKey('C'); });
    AddEntry(*menu, "Copy as &TeX\tCtrl+T", "Copies the console's selection, its tables as TeX",
             [this]
             {
                 ShowPage(PAGE_CONSOLE);
                 EditKey('T');
             });
    AddEntry(*menu, "Select &all\tCtrl+A", "Selects all of the console or the grid", [this] { EditKey('A'); });
    menu->AppendSeparator();
    AddEntry(*menu, "C&lear console\tCtrl+L", "Empties the console", [this] { m_console->ClearConsole(); });
    menu->AppendSeparator();
    AddEntry(*menu, "&Preferences...", "Working directory, and questions at the end", [this] { m_preferences->Edit(this); });
    AddEntry(*menu, "Paths to &external programs...", "Where outside programs are", [this] { m_preferences->EditPaths(this); });
    bar.Append(menu, "&Edit");
}

void MainFrame::MakeDataMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    AddEntry(*menu, "&Import...\tCtrl+I", "Makes a dataset of a text file", [this] { ImportData(); });
    auto const add = [this, menu](wxString const& label, wxString const& help, Ask ask, Page page)
    { AddEntry(*menu, label, help, [=] { AskAndRun(ask, page); }); };
    AddEntry(*menu, "&Export...\tCtrl+E", "Writes a dataset to a text file", [this] { ExportData(); });
    AddEntry(*menu, "Export &matrix...", "Writes the shown matrix to a text file", [this] { ExportMatrix(); });
    menu->AppendSeparator();
    add("&Create variable...\tCtrl+K", "Makes a variable by an expression", AskCreateVariable, PAGE_DATA);
    add("&Delete variables...", "Takes variables out of a dataset", AskDeleteVariables, PAGE_DATA);
    add("&Sort...", "Puts the observations in order", AskSort, PAGE_DATA);
    add("Set s&tructure...", "Says which variable is time, and which names groups", AskStructure,
        PAGE_CONSOLE);
    add("Cle&ar dataset...", "Takes a dataset out of the workspace", AskClearDataset, PAGE_CONSOLE);
    menu->AppendSeparator();
    add("S&ummarize...\tCtrl+U", "Prints statistics of variables", AskSummarize, PAGE_CONSOLE);
    add("P&lot...\tCtrl+G", "Draws variables", AskPlot, PAGE_CONSOLE);
    menu->AppendSeparator();
    AddEntry(*menu, "&Print\tCtrl+P", "Prints the shown dataset or matrix on the console",
             [this] { PrintShown(); });
    bar.Append(menu, "&Data");
}

void MainFrame::MakeModelMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    auto const add = [this, menu](wxString const& label, wxString const& help, AskOfModel ask,
                                  Page page = PAGE_CONSOLE)
    { AddEntry(*menu, label, help, [=] { AskOfModelAndRun(ask, page); }); };
    AddEntry(*menu, "&Linear regression...\tCtrl+M", "Estimates a linear regression by Gibbs sampling",
             [this] { EstimateRegression(); });
    AddEntry(*menu, "&Print model", "Prints the results of the selected model", [this] { PrintModel(); });
    menu->AppendSeparator();
    add("&Test restrictions...", "Computes the posterior probability of conditions on parameters", AskTest);
    add("&Compare models...", "Computes posterior model probabilities", AskCompare);
    add("Pl&ot draws...", "Draws the posterior draws of parameters", AskPlotDraws);
    menu->AppendSeparator();
    add("Store &fitted values...", "Stores them as a variable", AskStoreFitted, PAGE_DATA);
    add("Store &residuals...", "Stores them as a variable", AskStoreResiduals, PAGE_DATA);
    add("&Marginal effects...", "Computes effects of the selected model's regressors", AskEffects);
    add("Forec&ast...", "Forecasts the dependent variable of the selected model", AskForecast);
    add("&Impulse responses...", "Draws the responses to shocks", AskResponses);
    add("Pr&edictions...", "Stores predictions of the selected model as variables", AskPredict, PAGE_DATA);
    menu->AppendSeparator();
    AddEntry(*menu, "&Design matrix...\tCtrl+D", "Makes the matrix of one equation's variables and lags",
             [this] { FillForm<DesignForm>(); });
    AddEntry(*menu, "&System of equations...", "Makes a matrix for each equation of a system",
             [this] { FillForm<SystemForm>(); });
    bar.Append(menu, "&Model");
}

void MainFrame::MakeProgramsMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    auto const add = [this, menu](wxString const& label, wxString const& help, Asked (*ask)(wxWindow*))
    { AddEntry(*menu, label, help, [=] { RunAsked(ask(this), PAGE_CONSOLE); }); };
    add("&JAGS...", "Samples from the posterior of a model in its language", AskJags);
    add("Open&BUGS...", "Samples from the posterior of a model in its language", AskOpenBugs);
    add("&Stan...", "Samples from the posterior of a model in its language", AskStan);
    menu->AppendSeparator();
    add("GNU &Octave...", "Runs a script on items of the workspace", AskOctave);
    add("&R-project...", "Runs a script on items of the workspace", AskRproject);
    add(wxString::FromUTF8("&MATLAB®..."), "Runs a script on items of the workspace", AskMatlab);
    add(wxString::FromUTF8("S&tata®..."), "Runs a script on items of the workspace", AskStata);
    bar.Append(menu, "&Programs");
}

void MainFrame::MakeScriptMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    AddEntry(*menu, "&Run script...\tCtrl+R", "Runs the statements of a file", [this] { RunScript(); });
    AddEntry(*menu, "&Save session as script...", "Saves what was run since the start",
             [this] { SaveSession(); });
    menu->AppendSeparator();
    wxMenuItem* const stop = menu->Append(wxID_ANY, "S&top\tCtrl+.", "Ends the running command");
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { m_runner->Stop(); }, stop->GetId());
    Bind(
        wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& event) { event.Enable(m_runner->IsBusy()); }, stop->GetId());
    bar.Append(menu, "&Script");
}

void MainFrame::MakeViewMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    AddEntry(*menu, "&Start page\tCtrl+1", "Shows the start page", [this] { ShowPage(PAGE_START); });
    AddEntry(*menu, "&Console\tCtrl+2", "Shows the console", [this] { ShowPage(PAGE_CONSOLE); });
    AddEntry(*menu, "&Data\tCtrl+3", "Shows the datasets", [this] { ShowPage(PAGE_DATA); });
    AddEntry(*menu, "&Matrices\tCtrl+4", "Shows the matrices", [this] { ShowPage(PAGE_MATRICES); });
    wxMenuItem* const figures = menu->Append(wxID_ANY, "&Figures\tCtrl+5", "Shows the plots of this session");
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { m_figures->BringUp(); }, figures->GetId());
    Bind(
        wxEVT_UPDATE_UI, [this](wxUpdateUIEvent& event) { event.Enable(!m_figures->IsEmpty()); },
        figures->GetId());
    bar.Append(menu, "&View");
}

void MainFrame::MakeHelpMenu(wxMenuBar& bar)
{
    auto* const menu = new wxMenu;
    AddEntry(*menu, "&Quick start...", "Shows where to begin", [this] { m_preferences->ShowQuickStart(this); });
    AddEntry(*menu, "&Commands", "Lists the commands of the script language",
             [this]
             {
                 ShowPage(PAGE_CONSOLE);
                 Run("help();");
             });
    menu->AppendSeparator();
    AddEntry(*menu, "&About...", "Tells the version", [this] { AboutZenqo(this).ShowModal(); });
    bar.Append(menu, "&Help");
}
} // namespace workbench
