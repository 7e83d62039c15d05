#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>
#include <wx/dialog.h>

#include "engine/Export.h"

class PriorGrid;
class wxNotebook;

/// Asks for a point: one number for each of a list of variables, each zero at first.
///
/// It checks nothing. After `ShowModal` has returned `wxID_OK` the owner reads GetValues; a dialog
/// shown again shows what the user left in it.
class ZENQO_API UserPointDialog : public wxDialog
{
public:
    UserPointDialog(wxWindow* parent, std::vector<std::string>& names);

    /// The point, one entry for each name, in their order, with the six significant digits shown.
    Eigen::VectorXd GetValues();

    /// Has no effect: a point begins at zero, and only the user changes it.
    void WriteValues(Eigen::VectorXd& values);

private:
    wxNotebook* m_notebook;
    PriorGrid* m_grid;
};
