#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>

#include "dialogs/data/ClearDatasetDialog.h"
#include "dialogs/data/ClearVariableDialog.h"
#include "dialogs/data/CreateVariableDialog.h"
#include "dialogs/data/ExportDataDialog.h"
#include "dialogs/data/ImportDataDialog.h"
#include "dialogs/data/MarkDatasetDialog.h"
#include "dialogs/data/PlotDataDialog.h"
#include "dialogs/data/SortDataDialog.h"
#include "dialogs/data/SummarizeDataDialog.h"
#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "modelspec/VariablePickerMark.h"

namespace
{
/// The places of the sample datasets in the workspace.
enum
{
    AIR_QUALITY,
    CARS,
    LONGLEY
};

wxTopLevelWindow* ClearDataset(Shelf& shelf)
{
    auto* const dialog = new ClearDatasetDialog(nullptr, &shelf.datasets);
    dialog->SetDataset(CARS);
    return dialog;
}

/// A dialog in which some variables of a dataset are chosen.
template <class Dialog>
Dialog* WithVariables(Shelf& shelf, int dataset, std::vector<wxString> const& names)
{
    auto* const dialog = new Dialog(nullptr, &shelf.datasets);
    wxArrayString chosen(names.size(), names.data());
    dialog->SetVariables(dataset, chosen);
    return dialog;
}

wxTopLevelWindow* Create(Shelf& shelf)
{
    auto* const dialog = new CreateVariableDialog(nullptr, &shelf.datasets);
    dialog->SetDataset(LONGLEY);
    auto* const box = In<wxStaticBox>(dialog);
    auto* const name = In<wxTextCtrl>(box);
    auto* const expression = dynamic_cast<wxTextCtrl*>(name->GetNextSibling());
    name->SetValue("log_GNP");
    expression->SetValue("log(  )");
    expression->SetInsertionPoint(5);
    SelectInFirstList(box, {2});
    wxCommandEvent press;
    dialog->OnMoveButton(press);
    return dialog;
}

wxTopLevelWindow* Mark(Shelf& shelf)
{
    auto* const dialog = new MarkDatasetDialog(nullptr, &shelf.datasets);
    dialog->SetDataset(LONGLEY);
    auto* const picker = In<VariablePickerMark>(In<wxStaticBox>(dialog));
    SelectInFirstList(picker, {6});
    wxCommandEvent press;
    picker->OnUpperButton(press);
    return dialog;
}

wxTopLevelWindow* Plot(Shelf& shelf)
{
    auto* const dialog = WithVariables<PlotDataDialog>(shelf, AIR_QUALITY, {"Ozone", "Temp"});
    In<wxRadioBox>(dialog)->SetSelection(1);
    return dialog;
}
} // namespace

std::vector<Entry> DataDialogEntries()
{
    return {
        {"dialogs/data", "ClearDatasetDialog", ClearDataset},
        {"dialogs/data", "ClearVariableDialog",
         [](Shelf& shelf)
         { return WithVariables<ClearVariableDialog>(shelf, LONGLEY, {"ARMED", "POP"}); }},
        {"dialogs/data", "CreateVariableDialog", Create},
        {"dialogs/data", "ExportDataDialog",
         [](Shelf& shelf) { return new ExportDataDialog(nullptr, &shelf.datasets, CARS, false); }},
        {"dialogs/data", "ImportDataDialog",
         [](Shelf&)
         {
             wxString name = "wages";
             return new ImportDataDialog(nullptr, name);
         }},
        {"dialogs/data", "MarkDatasetDialog", Mark},
        {"dialogs/data", "PlotDataDialog", Plot},
        {"dialogs/data", "SortDataDialog",
         [](Shelf& shelf)
         { return WithVariables<SortDataDialog>(shelf, AIR_QUALITY, {"Month", "Day"}); }},
        {"dialogs/data", "SummarizeDataDialog",
         [](Shelf& shelf)
         { return WithVariables<SummarizeDataDialog>(shelf, CARS, {"mpg", "hp", "wt"}); }},
    };
}
