#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>
#include <wx/dialog.h>

#include "engine/Export.h"

class ExogValuesGrid;
class wxNotebook;

/// Asks for the future values of exogenous variables, period by period.
///
/// The owner calls DrawGrid before it shows the dialog, and after `ShowModal` has returned `wxID_OK`
/// reads GetValues. Nothing is checked.
class ZENQO_API ExogValuesDialog : public wxDialog
{
public:
    /// Shows one period of one variable without a name, until DrawGrid is called.
    explicit ExogValuesDialog(wxWindow* parent);

    /// Shows the numbers from which the user begins: `values` has a row for each period and a column
    /// for each name, and may have more.
    void DrawGrid(int periods, std::vector<std::string>& names, Eigen::MatrixXd const& values);

    /// The numbers in the same shape, with the six significant digits shown.
    Eigen::MatrixXd GetValues();

private:
    wxNotebook* m_notebook;
    ExogValuesGrid* m_grid;
};
