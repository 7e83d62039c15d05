#include "workbench/app/MainFrame.h"

#include <wx/filedlg.h>
#include <wx/ffile.h>
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/splitter.h>

#include "console/ZenqoConsole.h"
#include "engine/Engine.h"
#include "panes/DatasetsPane.h"
#include "panes/StatusBar.h"
#include "workbench/app/CallText.h"
#include "workbench/app/FigureWindow.h"
#include "workbench/app/RegressionForm.h"
#include "workbench/app/SidePanes.h"
#include "workbench/app/StartPage.h"

namespace workbench
{
namespace
{
char const* const WORKSPACE_FILES = "Workspace files (*.zws)|*.zws";
char const* const SCRIPT_FILES = "Scripts (*.zqs)|*.zqs|All files|*";
char const* const TEXT_FILES = "Text data (*.csv;*.txt)|*.csv;*.txt";
} // namespace

MainFrame::MainFrame(std::string const& samples, std::string const& settingsFile)
    : wxFrame(nullptr, wxID_ANY, "Zenqo Workbench", wxDefaultPosition, wxSize(1180, 780))
{
    // The toolkit would realize the window first and show it when the window manager has told the size
    // of its frame, and GTK lays it out in a few pixels in between and complains.
    m_deferShow = false;

    // The splitter begins with its real size: divided small, its panes would be laid out in less than
    // nothing.
    auto* const splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, GetClientSize(),
                                                wxSP_LIVE_UPDATE | wxSP_3DSASH);
    m_side = new SidePanes(splitter);
    MakePages(splitter, samples);
    splitter->SetMinimumPaneSize(160);
    splitter->SplitVertically(m_side, m_pages, 230);

    m_bar = new StatusBar(this, wxEmptyString);
    SetStatusBar(m_bar);
    m_dataPage.emplace(*m_dataGrid, m_workspace.datasets);
    m_matrixPage.emplace(*m_matrixGrid, m_workspace.matrices);
    m_runner.emplace(m_workspace, *m_console, *m_bar,
                     [this](Workspace const& before) { OnWorkspaceChanged(before); });
    m_figures = new FigureWindow(this);
    m_runner->SetFigureViewer([this](auto const& figure, auto const& picture) { m_figures->Add(figure, picture); });
    MakeMenus();

    Bind(wxEVT_PRINT_AND_RUN, &MainFrame::OnPrintAndRun, this);
    Bind(wxEVT_CLOSE_WINDOW, &MainFrame::OnClose, this);
    Bind(wxEVT_CHAR_HOOK, &MainFrame::OnCharHook, this);
    // Any lower, and the desktop's notebook complains of too little room for its pages.
    SetMinSize(wxSize(800, 560));
    m_side->Update(m_workspace);
    m_console->PrintOnStartup();
    NoteWhetherSaved();
    m_preferences.emplace(settingsFile,
                          [this](std::string const& text)
                          {
                              ShowPage(PAGE_CONSOLE);
                              m_console->PrintOnConsoleWarning(text);
                          });
}

MainFrame::~MainFrame() = default;

void MainFrame::MakePages(wxWindow* parent, std::string const& samples)
{
    m_pages = new wxNotebook(parent, wxID_ANY);
    auto* const start = new StartPage(m_pages, samples,
                                      [this](std::string const& script)
                                      {
                                          ShowPage(PAGE_CONSOLE);
                                          Run(script);
                                      });
    m_console = new ZenqoConsole(m_pages);
    m_dataGrid = new DataGrid(m_pages);
    m_matrixGrid = new MatrixGrid(m_pages);

    // Wide enough for the longest number of six digits, which would else be cut at its front.
    for (wxGrid* const grid : {m_dataGrid->GetGrid(), m_matrixGrid->GetGrid()})
        grid->SetDefaultColSize(110);

    auto const add = [this](wxWindow* page, wxString const& title)
    {
        // The notebook sizes its pages late. Until then a page needs room for its scroll bars.
        page->SetSize(600, 400);
        m_pages->AddPage(page, title);
    };
    add(start, "Start");
    add(m_console, "Console");
    add(m_dataGrid, "Data");
    add(m_matrixGrid, "Matrices");
    m_pages->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED,
                  [this](wxBookCtrlEvent& event)
                  {
                      event.Skip();
                      DrawShownPage();
                  });
}

bool MainFrame::Run(std::string const& script)
{
    bool const done = m_runner->Run(script);
    NoteWhetherSaved();
    return done;
}

void MainFrame::GreetUser()
{
    if (m_preferences->Get().showQuickStart)
        m_preferences->ShowQuickStart(this);
}

bool MainFrame::OpenFile(std::string const& path)
{
    ShowPage(PAGE_CONSOLE);
    return Run("load(\"" + path + "\");");
}

bool MainFrame::RunFile(std::string const& path)
{
    ShowPage(PAGE_CONSOLE);
    bool const done = m_runner->RunFile(path);
    NoteWhetherSaved();
    return done;
}

void MainFrame::OpenWorkspace()
{
    wxFileDialog dialog(this, "Open workspace", wxEmptyString, wxEmptyString, WORKSPACE_FILES,
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    if (dialog.ShowModal() != wxID_OK)
        return;
    m_preferences->FollowTo(dialog.GetPath(), &Settings::dirOnLoadWorkspace);
    OpenFile(Narrow(dialog.GetPath()));
}

bool MainFrame::SaveWorkspace()
{
    return m_saved.file.empty() ? SaveWorkspaceAs() : Run("save(\"" + m_saved.file + "\");");
}

bool MainFrame::SaveWorkspaceAs()
{
    wxFileDialog dialog(this, "Save workspace", wxEmptyString, "workspace.zws", WORKSPACE_FILES,
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialog.ShowModal() != wxID_OK)
        return false;
    m_preferences->FollowTo(dialog.GetPath(), &Settings::dirOnSaveWorkspace);
    wxFileName path(dialog.GetPath());
    if (!path.HasExt())
        path.SetExt("zws");
    return Run("save(\"" + Narrow(path.GetFullPath()) + "\");");
}

void MainFrame::ImportData()
{
    wxFileDialog dialog(this, "Import data", wxEmptyString, wxEmptyString, TEXT_FILES,
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    if (dialog.ShowModal() != wxID_OK)
        return;
    m_preferences->FollowTo(dialog.GetPath(), &Settings::dirOnImport);
    // From here on it is the way of a file that is dropped on the datasets' tree.
    auto* const files = new wxString[1]{dialog.GetPath()};
    wxDropFilesEvent event(wxEVT_DROP_FILES, 1, files);
    m_side->Datasets().OnDropFiles(event);
}

void MainFrame::ExportData()
{
    if (!HasDatasets())
        return;
    std::string path;
    RunAsked(AskExport(this, m_workspace.datasets, ShownDataset(), path), PAGE_CONSOLE);
    // Not before: the path may be a relative one.
    m_preferences->FollowTo(Wide(path), &Settings::dirOnExport);
}

void MainFrame::ExportMatrix()
{
    auto const shown = ShownMatrix();
    if (shown.empty())
    {
        wxMessageBox("There is no matrix in the workspace.", "Zenqo Workbench", wxOK | wxICON_INFORMATION, this);
        return;
    }
    std::string path;
    RunAsked(AskExportMatrix(this, shown, path), PAGE_CONSOLE);
    // Not before: the path may be a relative one.
    m_preferences->FollowTo(Wide(path), &Settings::dirOnExport);
}

bool MainFrame::HasDatasets()
{
    if (m_workspace.datasets.empty())
        wxMessageBox("There is no dataset in the workspace.", "Zenqo Workbench", wxOK | wxICON_INFORMATION,
                     this);
    return !m_workspace.datasets.empty();
}

int MainFrame::ShownDataset() const
{
    auto const shown = m_workspace.datasets.find(m_dataPage->Shown());
    return shown == m_workspace.datasets.end()
               ? 0
               : static_cast<int>(std::distance(m_workspace.datasets.begin(), shown));
}

std::string MainFrame::ShownMatrix() const
{
    auto const& matrices = m_workspace.matrices;
    bool const isThere = matrices.count(m_matrixPage->Shown()) > 0;
    return isThere ? m_matrixPage->Shown() : matrices.empty() ? std::string() : matrices.begin()->first;
}

void MainFrame::AskAndRun(Ask ask, Page page)
{
    if (!HasDatasets())
        return;
    RunAsked(ask(this, m_workspace.datasets, ShownDataset()), page);
}

void MainFrame::AskOfModelAndRun(AskOfModel ask, Page page)
{
    auto const model = m_side->SelectedModel();
    if (model.empty())
        wxMessageBox("There is no model in the workspace.", "Zenqo Workbench", wxOK | wxICON_INFORMATION, this);
    else
        RunAsked(ask(this, m_workspace, model), page);
}

void MainFrame::RunAsked(Asked const& statement, Page page)
{
    if (!statement)
        return;
    ShowPage(page);
    auto const before = m_workspace.models;
    // What went wrong is told on the console.
    if (!Run(*statement))
        ShowPage(PAGE_CONSOLE);
    // A model that this has made is the one with which the user goes on.
    for (auto const& [name, model] : m_workspace.models)
        if (auto const old = before.find(name); old == before.end() || old->second != model)
            m_side->SelectModel(name);
}

void MainFrame::EstimateRegression()
{
    if (!HasDatasets())
        return;
    std::string name;
    int number = 1;
    do
        name = "reg" + std::to_string(number++);
    while (!std::holds_alternative<std::monostate>(m_workspace.Find(name)));
    RegressionForm form(this, &m_workspace.datasets, name);
    if (form.ShowModal() == wxID_OK)
        RunAsked(form.Script(), PAGE_CONSOLE);
}

void MainFrame::PrintModel()
{
    auto const model = m_side->SelectedModel();
    if (model.empty())
        return;
    ShowPage(PAGE_CONSOLE);
    Run("print(" + model + ");");
}

void MainFrame::PrintShown()
{
    std::string const& name
        = m_pages->GetSelection() == PAGE_MATRICES ? m_matrixPage->Shown() : m_dataPage->Shown();
    if (name.empty())
        return;
    std::string const script = "print(" + name + ");";
    ShowPage(PAGE_CONSOLE);
    Run(script);
}

void MainFrame::RunScript()
{
    wxFileDialog dialog(this, "Run script", wxEmptyString, wxEmptyString, SCRIPT_FILES,
                        wxFD_OPEN | wxFD_FILE_MUST_EXIST);
    if (dialog.ShowModal() != wxID_OK)
        return;
    m_preferences->FollowTo(dialog.GetPath(), &Settings::dirOnOpenScript);
    RunFile(Narrow(dialog.GetPath()));
}

bool MainFrame::SaveSession()
{
    wxFileDialog dialog(this, "Save session as script", wxEmptyString, "session.zqs", SCRIPT_FILES,
                        wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialog.ShowModal() != wxID_OK)
        return false;
    m_preferences->FollowTo(dialog.GetPath(), &Settings::dirOnSaveScript);
    std::string text;
    for (std::string const& statement : m_runner->History())
        text += statement + "\n";
    wxFFile file;
    if (!file.Open(dialog.GetPath(), "wb") || !file.Write(text.data(), text.size()) || !file.Close())
    {
        m_console->PrintOnConsoleError("The script can't be saved as " + Narrow(dialog.GetPath()) + ".");
        return false;
    }
    m_savedStatements = m_runner->History().size();
    return true;
}

void MainFrame::EditKey(int key)
{
    // Console and grids serve these keys themselves; the menu hands them on.
    wxWindow* target = nullptr;
    switch (m_pages->GetSelection())
    {
    case PAGE_CONSOLE: target = m_console->GetChildren().GetFirst()->GetData(); break;
    case PAGE_DATA: target = m_dataGrid->GetGrid(); break;
    case PAGE_MATRICES: target = m_matrixGrid->GetGrid(); break;
    default: return;
    }
    // All but one: a grid has no key that selects everything.
    auto* const grid = wxDynamicCast(target, wxGrid);
    if (grid && key == 'A')
    {
        grid->SelectAll();
        return;
    }
    wxKeyEvent event(wxEVT_KEY_DOWN);
    event.SetEventObject(target);
    event.m_keyCode = key;
    event.SetControlDown(true);
    target->ProcessWindowEvent(event);
}

void MainFrame::OnCharHook(wxKeyEvent& event)
{
    // The console keeps every key with more than one modifier from the menu bar, and to GTK's text
    // controls this one with the point means that a picture of a face is to be inserted.
    bool const saveAs = event.GetModifiers() == (wxMOD_CONTROL | wxMOD_SHIFT) && event.GetKeyCode() == 'S';
    bool const stop = event.GetModifiers() == wxMOD_CONTROL && event.GetKeyCode() == '.';
    if (stop && m_runner->IsBusy())
        m_runner->Stop();
    else if (saveAs && !m_runner->IsBusy())
        SaveWorkspaceAs();
    else
        event.Skip();
}

void MainFrame::OnPrintAndRun(wxCommandEvent& event) { Run(Narrow(event.GetString())); }

void MainFrame::OnClose(wxCloseEvent& event)
{
    if (m_runner->IsBusy() && event.CanVeto())
    {
        m_runner->Stop();
        event.Veto();
        return;
    }
    bool const asks = event.CanVeto();
    bool const scriptsLeft = m_runner->History().size() > m_savedStatements;
    if ((asks && m_preferences->Get().promptScripts && scriptsLeft
         && !AskToSave("The session is not saved as a script.\n\nSave it before the workbench closes?",
                       [this] { return SaveSession(); }))
        || (asks && m_preferences->Get().promptWorkspace && !IsSaved()
            && !AskToSave("The workspace has changes that are not saved.\n\nSave them before the workbench "
                          "closes?",
                          [this] { return SaveWorkspace(); })))
    {
        event.Veto();
        return;
    }
    // One dot for each of the things that a large workspace takes time to let go of.
    for (auto release : {+[](Workspace& w) { w.models.clear(); }, +[](Workspace& w) { w.matrices.clear(); },
                         +[](Workspace& w) { w.datasets.clear(); }})
    {
        release(m_saved);
        release(m_workspace);
        m_console->PrintOnExit("");
    }
    Destroy();
}

bool MainFrame::AskToSave(wxString const& question, std::function<bool()> const& save)
{
    int const answer
        = wxMessageBox(question, "Zenqo Workbench", wxYES_NO | wxCANCEL | wxICON_QUESTION, this);
    return answer == wxNO || (answer == wxYES && save());
}

void MainFrame::OnWorkspaceChanged(Workspace const& before)
{
    m_side->Update(m_workspace);
    m_dataPage->OnChanged(before.datasets);
    m_matrixPage->OnChanged(before.matrices);
    DrawShownPage();
}

void MainFrame::DrawShownPage()
{
    // The grids are drawn when they are seen: a hidden one would be filled for nobody.
    if (m_pages->GetSelection() == PAGE_DATA)
        m_dataPage->Draw();
    else if (m_pages->GetSelection() == PAGE_MATRICES)
        m_matrixPage->Draw();
}

void MainFrame::ShowPage(Page page) { m_pages->SetSelection(page); }

bool MainFrame::IsSaved() const { return m_workspace.SameObjects(m_saved); }

void MainFrame::NoteWhetherSaved()
{
    // Loading and saving leave their mark in the workspace, wherever the command came from.
    if (m_workspace.stored != m_saved.stored)
        m_saved = m_workspace;
    wxString const file
        = m_saved.file.empty() ? wxString("Untitled") : wxFileName(Wide(m_saved.file)).GetFullName();
    SetTitle((IsSaved() ? wxString() : wxString("*")) + file + " - Zenqo Workbench");
}
} // namespace workbench
