#include "panes/DatasetsPane.h"

#include <wx/filename.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/treectrl.h>

#include "common/DroppedFile.h"
#include "common/NameList.h"
#include "common/Records.h"
#include "common/ScriptEvent.h"
#include "common/Text.h"
#include "common/Warning.h"
#include "dialogs/data/ImportDataDialog.h"
#include "engine/Functions.h"

namespace
{
constexpr char const* ROOT_TEXT = "DATASET_PANE_ROOT_HIDDEN";

zenqo::DropRule MakeDropRule()
{
    wxString const advice = "\n\nDrag and drop only single files.";
    zenqo::DropRule rule;
    rule.extensions.Add("csv");
    rule.extensions.Add("txt");
    rule.folderText = "The Datasets pane cannot accept folders\ndropped to it." + advice;
    rule.manyText = "The Datasets pane cannot accept mutliple\nfiles dropped to it." + advice;
    rule.extensionText = "The Datasets pane can only accept\ntext files (\".csv\" or \".txt\").";
    return rule;
}

wxString ImportCommand(wxString const& name, wxString const& path, char delimiter)
{
    wxString const written = delimiter == '\t' ? wxString("\\t") : wxString(delimiter);
    return name + " = import(\"" + path + "\", \"" + written + "\");";
}
} // namespace

DatasetsPane::DatasetsPane(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxSize(200, 300), wxTAB_TRAVERSAL | wxBORDER_NONE),
      m_tree(new wxTreeCtrl(this, wxID_ANY, wxDefaultPosition, wxSize(200, 300),
                            wxTR_HAS_BUTTONS | wxTR_LINES_AT_ROOT | wxTR_MULTIPLE | wxTR_HIDE_ROOT))
{
    m_tree->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
    m_tree->SetFont(zenqo::WorkspaceFont());

    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_tree, 1, wxEXPAND, 0);
    SetSizer(sizer);
    Layout();
    sizer->SetSizeHints(this);

    m_tree->DragAcceptFiles(true);
    m_tree->Bind(wxEVT_DROP_FILES, &DatasetsPane::OnDropFiles, this);
}

wxTreeCtrl* DatasetsPane::GetTreeCrtl() const { return m_tree; }

void DatasetsPane::Update(DatasetMap* datasets)
{
    m_tree->DeleteAllItems();
    m_tree->AddRoot(ROOT_TEXT);
    for (auto const& [key, dataset] : *datasets)
    {
        dataset->name = zenqo::ToWide(key);
        if (zenqo::HasVariables(*dataset))
            AppendDataset(*dataset);
    }
    // Once for all: each time it walks the whole tree.
    m_tree->ExpandAll();
}

void DatasetsPane::DrawTree(Dataset& dataset)
{
    if (!zenqo::HasVariables(dataset))
        return;
    AppendDataset(dataset);
    m_tree->ExpandAll();
}

void DatasetsPane::AppendDataset(Dataset const& dataset)
{
    // Without a root the tree would take the first dataset for it.
    auto root = m_tree->GetRootItem();
    if (!root.IsOk())
        root = m_tree->AddRoot(ROOT_TEXT);
    auto const branch = m_tree->AppendItem(root, dataset.name);
    for (std::size_t i = 1; i < dataset.varNames.size(); ++i)
        m_tree->AppendItem(branch, dataset.varNames[i]);
}

void DatasetsPane::OnDropFiles(wxDropFilesEvent& event)
{
    if (auto const path = zenqo::TakeDroppedFile(event, MakeDropRule(), this))
        AskForImport(*path);
}

void DatasetsPane::AskForImport(wxString const& path)
{
    std::string id = zenqo::ToNarrow(wxFileName(path).GetName());
    ProcessID(id);
    wxString name = zenqo::ToWide(id);

    auto* const dialog = new ImportDataDialog(this, name);
    if (dialog->ShowModal() == wxID_OK)
    {
        name = dialog->GetDatasetName();
        if (!CheckID(zenqo::ToNarrow(name)))
            zenqo::ShowWarning(this,
                               "The dataset name must not contain spaces\nor special characters and it "
                               "must not begin\nwith a number.",
                               wxICON_INFORMATION);
        else
            zenqo::SendScript(this, ImportCommand(name, path, dialog->GetDelimiter()));
    }
    dialog->Destroy();
}
