#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include <wx/frame.h>

#include "panes/DataGrid.h"
#include "panes/MatrixGrid.h"
#include "workbench/app/DataForms.h"
#include "workbench/app/GridPage.h"
#include "workbench/app/Preferences.h"
#include "workbench/app/ScriptRunner.h"
#include "workbench/engine/Workspace.h"

class wxNotebook;
class StatusBar;
class ZenqoConsole;

namespace workbench
{
class FigureWindow;
class SidePanes;

/// The workbench's window: the panes at the left, console, grids and start page in the middle, the
/// status bar below, and a menu for all that can be done.
///
/// Every entry of a menu composes a statement and runs it by the same road as a dropped file.
class MainFrame : public wxFrame
{
public:
    /// `samples` is the folder of the sample data. The user's settings are kept in `settingsFile`, and
    /// nowhere if that is empty.
    explicit MainFrame(std::string const& samples, std::string const& settingsFile = {});
    ~MainFrame() override;

    /// Echoes and runs a script text.
    bool Run(std::string const& script);

    /// Loads a workspace file.
    bool OpenFile(std::string const& path);

    /// Runs a script file.
    bool RunFile(std::string const& path);

    /// Shows the quick-start page, unless the user wants it no more.
    void GreetUser();

private:
    enum Page
    {
        PAGE_START,
        PAGE_CONSOLE,
        PAGE_DATA,
        PAGE_MATRICES
    };

    void MakeMenus();
    void MakeFileMenu(wxMenuBar& bar);
    void MakeEditMenu(wxMenuBar& bar);
    void MakeDataMenu(wxMenuBar& bar);
    void MakeModelMenu(wxMenuBar& bar);
    void MakeProgramsMenu(wxMenuBar& bar);
    void MakeScriptMenu(wxMenuBar& bar);
    void MakeViewMenu(wxMenuBar& bar);
    void MakeHelpMenu(wxMenuBar& bar);
    void MakePages(wxWindow* parent, std::string const& samples);

    /// Adds an entry that is enabled while no command runs.
    template <class Action> void AddEntry(wxMenu& menu, wxString const& label, wxString const& help, Action action);

    void OpenWorkspace();
    bool SaveWorkspace();
    bool SaveWorkspaceAs();
    void ImportData();
    void ExportData();
    void ExportMatrix();
    using Ask = Asked (*)(wxWindow* parent, DatasetMap& datasets, int shown);

    /// Lets the user compose a statement in a data dialog, and runs it with `page` on view.
    void AskAndRun(Ask ask, Page page);
    /// The same for a dialog about models.
    using AskOfModel = Asked (*)(wxWindow* parent, Workspace& workspace, std::string const& shown);
    void AskOfModelAndRun(AskOfModel ask, Page page);

    void RunAsked(Asked const& statement, Page page);
    void EstimateRegression();
    void PrintModel();
    bool HasDatasets();
    int ShownDataset() const;

    /// The name of the matrix in the grid, else of the first one; empty if there is none.
    std::string ShownMatrix() const;
    void PrintShown();
    template <class Form> void FillForm();
    void RunScript();
    bool SaveSession();

    /// Asks whether to save what has changed, by `save`. False if the window is to stay.
    bool AskToSave(wxString const& question, std::function<bool()> const& save);
    void EditKey(int key);

    void OnCharHook(wxKeyEvent& event);
    void OnPrintAndRun(wxCommandEvent& event);
    void OnClose(wxCloseEvent& event);

    void OnWorkspaceChanged(Workspace const& before);
    void DrawShownPage();
    void ShowPage(Page page);
    bool IsSaved() const;
    void NoteWhetherSaved();

    Workspace m_workspace;
    Workspace m_saved; ///< The workspace as it was last loaded or saved.

    SidePanes* m_side;
    wxNotebook* m_pages;
    ZenqoConsole* m_console;
    DataGrid* m_dataGrid;
    MatrixGrid* m_matrixGrid;
    StatusBar* m_bar;
    FigureWindow* m_figures;
    std::optional<GridPage<DataGrid, Dataset>> m_dataPage;
    std::optional<GridPage<MatrixGrid, Eigen::MatrixXd>> m_matrixPage;
    std::optional<ScriptRunner> m_runner;
    std::optional<Preferences> m_preferences;
    std::size_t m_savedStatements = 0; ///< Of the session, how many are saved as a script.
};
} // namespace workbench
