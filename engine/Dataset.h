#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <Eigen/Core>
#include <wx/arrstr.h>
#include <wx/string.h>

/// A column of a dataset that holds text.
struct LabelledColumn
{
    /// The distinct labels in order of first appearance. The number k in the dataset's `data`
    /// stands for `levels[k]`; NaN stands for a missing label. The widgets do not read it.
    std::vector<std::string> levels;

    /// The text of the column, one entry for each observation; empty where it is missing.
    std::vector<std::string> labels;
};

/// A rectangular set of observations on named variables.
///
/// Column 0 of `data` and entry 0 of `varNames` belong to a first column that is never shown:
/// every loop of the widgets over variables starts at index 1.
struct Dataset
{
    /// The dataset's name; equal to its key in the workspace once a pane has drawn it.
    /// May be zenqo::EMPTY_DATASET for a placeholder that is not drawn.
    wxString name;

    /// One name for each column of `data`. An empty entry 0 marks a dataset without usable
    /// variables, which the panes skip.
    wxArrayString varNames;

    /// The observations: one row each, one column for each variable.
    Eigen::MatrixXd data;

    /// The columns that hold text, keyed by the column's index in `data`.
    std::map<int, LabelledColumn> labelledColumns;
};

/// The workspace's datasets by name. The order of the map is the order of every list.
using DatasetMap = std::map<std::string, std::shared_ptr<Dataset>>;
