#pragma once

#include <optional>
#include <string>

#include "engine/Dataset.h"

class wxWindow;

namespace workbench
{
/// The statement that the user composes in one of the library's data dialogs; nothing if it was
/// cancelled. `datasets` is not empty, and `shown` is the index of the dataset that is selected at first.
///@{
using Asked = std::optional<std::string>;
Asked AskClearDataset(wxWindow* parent, DatasetMap& datasets, int shown);
Asked AskDeleteVariables(wxWindow* parent, DatasetMap& datasets, int shown);
Asked AskCreateVariable(wxWindow* parent, DatasetMap& datasets, int shown);
Asked AskStructure(wxWindow* parent, DatasetMap& datasets, int shown);
Asked AskSort(wxWindow* parent, DatasetMap& datasets, int shown);
Asked AskSummarize(wxWindow* parent, DatasetMap& datasets, int shown);
Asked AskPlot(wxWindow* parent, DatasetMap& datasets, int shown);
///@}

/// The same for the dialogs that ask for a file to write, whose path is put into `path`.
///@{
Asked AskExport(wxWindow* parent, DatasetMap& datasets, int shown, std::string& path);
Asked AskExportMatrix(wxWindow* parent, std::string const& matrix, std::string& path);
///@}
} // namespace workbench
