#pragma once

#include <memory>
#include <optional>
#include <string>

#include <wx/frame.h>

#include "panes/DataGrid.h"
#include "panes/MatrixGrid.h"
#include "workbench/app/DataForms.h"
#include "workbench/app/GridPage.h"
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
    /// `samples` is the folder of the sample data.
    explicit MainFrame(std::string const& samples);
    ~MainFrame() override;

    /// Echoes and runs a script text.
    bool Run(std::string const& script);

    /// Loads a workspace file.
    bool OpenFile(std::string const& path);

    /// Runs a script file.
    bool RunFile(std::string const& path);

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
    void MakeScriptMenu(wxMenuBar& bar);
    void MakeViewMenu(wxMenuBar& bar);
    void MakePages(wxWindow* parent, std::string const& samples);

    /// Adds an entry that is enabled while no command runs.
    template <class Action> void AddEntry(wxMenu& menu, wxString const& label, wxString const& help, Action action);

    void OpenWorkspace();
    bool SaveWorkspace();
    bool SaveWorkspaceAs();
    void ImportData();
    using Ask = Asked (*)(wxWindow* parent, DatasetMap& datasets, int shown);

    /// Lets the user compose a statement in a data dialog, and runs it with `page` on view.
    void AskAndRun(Ask ask, Page page);
    bool HasDatasets();
    int ShownDataset() const;
    void PrintShown();
    template <class Form> void FillForm();
    void RunScript();
    void SaveSession();
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
};
} // namespace workbench
