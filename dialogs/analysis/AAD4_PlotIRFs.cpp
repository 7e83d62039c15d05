#include "dialogs/analysis/AAD4_PlotIRFs.h"

#include <tuple>

#include <wx/radiobut.h>
#include <wx/spinctrl.h>

#include "common/ActionControls.h"
#include "common/ActionFrame.h"
#include "pickers/NotePanel.h"

AAD4_PlotIRFs::AAD4_PlotIRFs(wxWindow* parent, std::vector<std::string>& arguments)
    : wxDialog(parent, wxID_ANY, "Plot Impulse Responses", wxDefaultPosition, zenqo::ACTION_SIZE,
               zenqo::ACTION_STYLE)
{
    auto* const sizer = zenqo::BeginAction(
        this, "Plotting impulse responses for model \"" + zenqo::ToWide(arguments[0]) + "\".",
        zenqo::SentenceWidth::WIDE);
    auto* const row = new wxFlexGridSizer(1, 3, 0, 5);
    for (std::size_t const column : {0, 1, 2})
        row->AddGrowableCol(column);
    m_periods = zenqo::AddHorizonBox(this, row, "Horizon", 10);
    auto* const type = zenqo::AddBoxToRow(this, row, "Type of shock");
    std::tie(m_raw, m_orthogonal) = zenqo::AddRadioPair(type, new wxGridSizer(2, 1, 0, 0),
                                                        "on raw errors", "orthogonal errors");
    auto* const unit = zenqo::AddBoxToRow(this, row, "Unit of shock");
    std::tie(m_unit, m_scaled)
        = zenqo::AddRadioPair(unit, new wxGridSizer(2, 1, 0, 0), "one unit of the variable",
                              "one standard deviation");
    m_orthogonal->SetValue(true);
    m_scaled->SetValue(true);
    sizer->Add(row, 0, wxEXPAND | wxALL, 5);
    zenqo::FinishActionWithAnyNote<NotePanel>(this, sizer, arguments[1]);
}

int AAD4_PlotIRFs::GetPeriods() const { return m_periods->GetValue(); }

bool AAD4_PlotIRFs::GetOrthogonal() const { return m_orthogonal->GetValue(); }

bool AAD4_PlotIRFs::GetScaled() const { return m_scaled->GetValue(); }
