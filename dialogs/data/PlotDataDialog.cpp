#include "dialogs/data/PlotDataDialog.h"

#include <wx/radiobox.h>

#include "common/DialogFrame.h"
#include "common/RadioBox.h"
#include "pickers/VariablePickerSingle.h"

namespace
{
enum PlotType
{
    SCATTER = 1,
    XY_LINES = 4
};

wxString NeedsTwo(wxString const& plots)
{
    return "Plotting " + plots
           + " requires at least\ntwo variables to be selected for plotting."
             "\n\n(The last variable will be the one placed\non the horizontal axis.)";
}
} // namespace

PlotDataDialog::PlotDataDialog(wxWindow* parent, DatasetMap* datasets)
    : wxDialog(parent, wxID_ANY, "Plot Data")
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    m_variables = zenqo::AddBoxedPicker<VariablePickerSingle>(
        this, zenqo::AddGrowingCell(sizer), "Select Dataset && Variables to Plot", datasets, 235,
        "Variables to Plot");
    // The blanks belong to the items.
    m_type = zenqo::AddRadioBox(this, sizer, "Plot type",
                                {"Histogram               ", "Scatter plot            ",
                                 "History                 ", "Kernel density          ",
                                 "X-Y lines               ", "Correlogram (acf)       "},
                                3);
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::LayOutDialog(this, sizer);
    Bind(wxEVT_BUTTON, &PlotDataDialog::OnButtonOk, this, wxID_OK);
}

void PlotDataDialog::SetSelection(int index) { m_variables->SetSelection(index); }

void PlotDataDialog::SetVariables(int index, wxArrayString& names)
{
    m_variables->SetVariables(index, names);
}

std::string PlotDataDialog::GetDatasetName() const { return m_variables->GetDatasetName(); }

wxArrayString PlotDataDialog::GetVarNames() const { return m_variables->GetRhsVars(); }

int PlotDataDialog::GetPlotType() const { return m_type->GetSelection(); }

wxString PlotDataDialog::Complaint() const
{
    auto const names = GetVarNames();
    if (auto const none = zenqo::ComplainOfNone(names); !none.empty())
        return none;
    if (names.size() < 2 && GetPlotType() == SCATTER)
        return NeedsTwo("scatter plots");
    if (names.size() < 2 && GetPlotType() == XY_LINES)
        return NeedsTwo("X-Y plots");
    return wxString();
}

void PlotDataDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptUnless(Complaint(), this, event);
}
