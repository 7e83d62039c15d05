#include "workbench/app/DataForms.h"

#include <wx/arrstr.h>

#include "dialogs/application/ExportMatrixDialog.h"
#include "dialogs/data/ClearDatasetDialog.h"
#include "dialogs/data/ClearVariableDialog.h"
#include "dialogs/data/CreateVariableDialog.h"
#include "dialogs/data/ExportDataDialog.h"
#include "dialogs/data/MarkDatasetDialog.h"
#include "dialogs/data/PlotDataDialog.h"
#include "dialogs/data/SortDataDialog.h"
#include "dialogs/data/SummarizeDataDialog.h"
#include "workbench/app/CallText.h"
#include "workbench/plot/Figure.h"

namespace workbench
{
namespace
{
/// A delimiter as the script language writes it.
std::string DelimiterText(char delimiter) { return delimiter == '\t' ? "\\t" : std::string(1, delimiter); }

std::string ExportCall(std::string const& name, std::string const& path, char delimiter)
{
    return CallText("export").Name(name).Text(path).Text(DelimiterText(delimiter)).Done();
}

/// Shows a dialog in which the dataset `shown` is selected and nothing chosen of it.
template <class Dialog>
bool ShowFor(Dialog& dialog, int shown)
{
    wxArrayString none;
    none.Add(wxEmptyString);
    dialog.SetVariables(shown, none);
    return dialog.ShowModal() == wxID_OK;
}

/// What a dialog says of a dataset and its variables, after `command`.
template <class Dialog>
std::string WithVariables(char const* command, Dialog const& dialog)
{
    return CallText(command).Name(dialog.GetDatasetName()).Text(Joined(dialog.GetVarNames())).Done();
}
} // namespace

Asked AskExport(wxWindow* parent, DatasetMap& datasets, int shown, std::string& path)
{
    ExportDataDialog dialog(parent, &datasets, shown, true);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    path = dialog.GetFileName();
    return ExportCall(dialog.GetDatasetName(), path, dialog.GetDelimiter());
}

Asked AskExportMatrix(wxWindow* parent, std::string const& matrix, std::string& path)
{
    ExportMatrixDialog dialog(parent, "Export Matrix " + Wide(matrix), true, matrix);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    path = dialog.GetFileName();
    return ExportCall(matrix, path, dialog.GetDelimiter());
}

Asked AskClearDataset(wxWindow* parent, DatasetMap& datasets, int shown)
{
    ClearDatasetDialog dialog(parent, &datasets);
    dialog.SetDataset(shown);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    return CallText("clear").Name(dialog.GetDatasetName()).Done();
}

Asked AskDeleteVariables(wxWindow* parent, DatasetMap& datasets, int shown)
{
    ClearVariableDialog dialog(parent, &datasets);
    if (!ShowFor(dialog, shown))
        return {};
    return WithVariables("drop", dialog);
}

Asked AskCreateVariable(wxWindow* parent, DatasetMap& datasets, int shown)
{
    CreateVariableDialog dialog(parent, &datasets);
    dialog.SetDataset(shown);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    return CallText("create")
        .Name(dialog.GetDatasetName())
        .Text(Narrow(dialog.GetVarName()))
        .Text(Narrow(dialog.GetExpression())).Done();
}

Asked AskStructure(wxWindow* parent, DatasetMap& datasets, int shown)
{
    static char const* const FORMATS[] = {"index", "yyyyqx", "yyyymxx", "yyyy/mm/dd"};
    MarkDatasetDialog dialog(parent, &datasets);
    dialog.SetDataset(shown);
    if (dialog.ShowModal() != wxID_OK)
        return {};
    return CallText("structure")
        .Name(dialog.GetDatasetName())
        .Text(Narrow(dialog.GetTimeVar()))
        .Text(FORMATS[dialog.GetTimeFormat()])
        .Text(Narrow(dialog.GetGroupVar())).Done();
}

Asked AskSort(wxWindow* parent, DatasetMap& datasets, int shown)
{
    SortDataDialog dialog(parent, &datasets);
    if (!ShowFor(dialog, shown))
        return {};
    return WithVariables("sort", dialog);
}

Asked AskSummarize(wxWindow* parent, DatasetMap& datasets, int shown)
{
    SummarizeDataDialog dialog(parent, &datasets);
    if (!ShowFor(dialog, shown))
        return {};
    return CallText("summarize")
        .Name(dialog.GetDatasetName())
        .Text(Joined(dialog.GetVarNames()))
        .Text(dialog.GetSummarizeAll() ? "complete" : "available").Done();
}

Asked AskPlot(wxWindow* parent, DatasetMap& datasets, int shown)
{
    PlotDataDialog dialog(parent, &datasets);
    if (!ShowFor(dialog, shown))
        return {};
    return CallText("plot")
        .Name(dialog.GetDatasetName())
        .Text(Joined(dialog.GetVarNames()))
        .Text(PlotTypeNames()[static_cast<std::size_t>(dialog.GetPlotType())]).Done();
}
} // namespace workbench
