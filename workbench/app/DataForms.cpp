#include "workbench/app/DataForms.h"

#include <wx/arrstr.h>
#include <wx/filename.h>

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
#include "workbench/app/Overwrite.h"
#include "workbench/plot/Figure.h"

namespace workbench
{
namespace
{
/// A delimiter as the script language writes it.
std::string DelimiterText(char delimiter) { return delimiter == '\t' ? "\\t" : std::string(1, delimiter); }

/// The statement that exports what `name()` tells to the file that the user names in `dialog`, whose path
/// goes to `path`. Where the file isn't to be replaced after all the dialog comes again.
template <class Dialog, class Name>
Asked AskForFile(wxWindow* parent, Dialog& dialog, Name name, std::string& path)
{
    while (dialog.ShowModal() == wxID_OK)
    {
        auto const file = dialog.GetFileName();
        if (!MayWrite(Wide(file), dialog.GetTitle(), parent))
            continue;
        path = file;
        return CallText("export").Name(name()).Text(file).Text(DelimiterText(dialog.GetDelimiter())).Done();
    }
    return {};
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
    return AskForFile(parent, dialog, [&] { return dialog.GetDatasetName(); }, path);
}

Asked AskExportMatrix(wxWindow* parent, std::string const& matrix, std::string& path)
{
    ExportMatrixDialog dialog(parent, "Export Matrix " + Wide(matrix), true, matrix);
    return AskForFile(parent, dialog, [&] { return matrix; }, path);
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
