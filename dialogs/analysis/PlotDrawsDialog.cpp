#include "dialogs/analysis/PlotDrawsDialog.h"

#include <wx/radiobox.h>

#include "common/DialogFrame.h"
#include "common/RadioBox.h"
#include "pickers/DrawsPicker.h"

PlotDrawsDialog::PlotDrawsDialog(wxWindow* parent, ModelMap* models)
    : wxDialog(parent, wxID_ANY, "Plot Samples")
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_draws = zenqo::AddBoxedPicker<DrawsPicker>(this, zenqo::AddGrowingCell(sizer),
                                                 "Select Model && Draws to Plot", models, 235, 18,
                                                 "Draws to Plot");
    // The blanks belong to the items.
    m_type = zenqo::AddRadioBox(this, sizer, "Plot type",
                                {"Histogram              ", "History                ",
                                 "All plots in one figure", "Kernel density         ",
                                 "Correlogram (acf)      "},
                                3);
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::LayOutDialog(this, sizer);
    Bind(wxEVT_BUTTON, &PlotDrawsDialog::OnButtonOk, this, wxID_OK);
}

void PlotDrawsDialog::SetSelection(int index) { m_draws->SetSelection(index); }

std::string PlotDrawsDialog::GetModelName() const { return m_draws->GetModelName(); }

wxArrayString PlotDrawsDialog::GetVarNames() const { return m_draws->GetRhsVars(); }

int PlotDrawsDialog::GetPlotType() const { return m_type->GetSelection(); }

void PlotDrawsDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptUnless(zenqo::ComplainOfNone(GetVarNames(), "draws"), this, event);
}
