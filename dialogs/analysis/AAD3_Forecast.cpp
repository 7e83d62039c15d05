#include "dialogs/analysis/AAD3_Forecast.h"

#include <algorithm>
#include <tuple>

#include <wx/button.h>
#include <wx/radiobut.h>
#include <wx/spinctrl.h>

#include "common/ActionControls.h"
#include "common/ActionFrame.h"
#include "common/ActionOptions.h"
#include "engine/Sentinels.h"
#include "modelspec/ExogValuesDialog.h"
#include "pickers/NotePanel.h"

AAD3_Forecast::AAD3_Forecast(wxWindow* parent, std::vector<std::string>& arguments)
    : wxDialog(parent, wxID_ANY, "Forecast", wxDefaultPosition, zenqo::ACTION_SIZE, zenqo::ACTION_STYLE)
{
    bool const hasExog = arguments[2] != zenqo::DEFAULT_STRING;
    if (hasExog)
        m_names.assign(arguments.begin() + 2, arguments.end() - 1);

    auto* const sizer = zenqo::BeginAction(
        this, "Calculating forecasts for model \"" + zenqo::ToWide(arguments[0]) + "\".",
        zenqo::SentenceWidth::NARROW);
    auto* const row = new wxFlexGridSizer(1, 2, 0, 5);
    row->AddGrowableCol(1);
    m_periods = zenqo::AddHorizonBox(this, row, "Forecast horizon", 1);
    BuildExogBox(row);
    sizer->Add(row, 1, wxEXPAND | wxALL, 5);
    zenqo::FinishActionWithAnyNote<NotePanel>(this, sizer, arguments[1]);

    m_mean->Enable(hasExog);
    m_custom->Enable(hasExog);
    m_mean->Bind(wxEVT_RADIOBUTTON, &AAD3_Forecast::OnDefaultValues, this);
    m_custom->Bind(wxEVT_RADIOBUTTON, &AAD3_Forecast::OnCustomValues, this);
    m_define->Bind(wxEVT_BUTTON, &AAD3_Forecast::OnDefineValuesButton, this);
}

void AAD3_Forecast::BuildExogBox(wxSizer* row)
{
    auto* const box = zenqo::AddBoxToRow(this, row, "Values for the exogenous variables");
    auto* const grid = new wxFlexGridSizer(2, 1, 0, 0);
    m_mean = new wxRadioButton(box->GetStaticBox(), wxID_ANY, "mean of data", wxDefaultPosition,
                               wxDefaultSize, wxRB_GROUP);
    grid->Add(m_mean, 0, wxLEFT | wxTOP, 5);
    std::tie(m_custom, m_define) = zenqo::AddDefineRow(box, grid, "user-defined values", wxLEFT);
    m_mean->SetValue(true);
    box->Add(grid, 1, wxEXPAND, 5);
}

int AAD3_Forecast::GetPeriods() const { return m_periods->GetValue(); }

bool AAD3_Forecast::GetDefaultExog() const { return m_mean->GetValue(); }

std::string AAD3_Forecast::GetExogValues() const
{
    return zenqo::MatrixOption(",\n\t\"W\"=[\t", m_values);
}

void AAD3_Forecast::OnDefaultValues(wxCommandEvent&) { m_define->Enable(false); }

void AAD3_Forecast::OnCustomValues(wxCommandEvent&) { m_define->Enable(true); }

void AAD3_Forecast::OnDefineValuesButton(wxCommandEvent&)
{
    if (!m_valuesDialog)
        m_valuesDialog = new ExogValuesDialog(this);
    int const periods = GetPeriods();
    if (m_values.rows() == 0)
        m_values.setZero(periods, static_cast<Eigen::Index>(m_names.size()));
    m_valuesDialog->DrawGrid(periods, m_names, ShownValues(periods));
    if (m_valuesDialog->ShowModal() == wxID_OK)
        m_values = m_valuesDialog->GetValues();
}

/// The stored values for so many periods: rows that are missing are zero, those that are too many are
/// left out.
Eigen::MatrixXd AAD3_Forecast::ShownValues(Eigen::Index periods) const
{
    Eigen::MatrixXd shown = Eigen::MatrixXd::Zero(periods, m_values.cols());
    auto const known = std::min(periods, m_values.rows());
    shown.topRows(known) = m_values.topRows(known);
    return shown;
}
