#pragma once

#include <string>
#include <vector>

#include <Eigen/Core>
#include <wx/dialog.h>

#include "engine/Export.h"

class ExogValuesDialog;
class wxButton;
class wxRadioButton;
class wxSizer;
class wxSpinCtrl;

/// Asks how far ahead a model forecasts, and with which future values of its exogenous variables.
///
/// It checks nothing: the user may ask for values of their own and never define them, or change the
/// horizon afterwards.
class ZENQO_API AAD3_Forecast : public wxDialog
{
public:
    /// `arguments` are three texts and more: [0] the model, [1] a note, which may be empty, from [2] on
    /// the names of the exogenous variables, and a last entry, which is not read.
    /// zenqo::DEFAULT_STRING as [2] says that the model has none.
    AAD3_Forecast(wxWindow* parent, std::vector<std::string>& arguments);

    /// The horizon in periods, 1 to 999.
    int GetPeriods() const;

    /// True if the mean of the data is to be taken for the exogenous variables.
    bool GetDefaultExog() const;

    /// The user's values as a piece of script, a row for each period and a column for each variable in
    /// the format of `GLOBAL_IOFormatInput`. Good for something only if GetDefaultExog is false; empty
    /// brackets if the user has defined none, and not always as many rows as GetPeriods.
    std::string GetExogValues() const;

    /// What the user does with the exogenous variables. Only values of the user's own can be defined;
    /// they outlive a change of the horizon, in which missing rows are zero.
    ///@{
    void OnDefaultValues(wxCommandEvent& event);
    void OnCustomValues(wxCommandEvent& event);
    void OnDefineValuesButton(wxCommandEvent& event);
    ///@}

private:
    void BuildExogBox(wxSizer* row);
    Eigen::MatrixXd ShownValues(Eigen::Index periods) const;

    wxSpinCtrl* m_periods;
    wxRadioButton* m_mean;
    wxRadioButton* m_custom;
    wxButton* m_define;
    ExogValuesDialog* m_valuesDialog = nullptr;
    Eigen::MatrixXd m_values;
    std::vector<std::string> m_names;
};
