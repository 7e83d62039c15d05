#include "pickers/GibbsPickerStan.h"

#include <wx/textctrl.h>

#include "common/SamplerRows.h"

GibbsPickerStan::GibbsPickerStan(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0)
{
    auto rows = zenqo::DefaultSamplerRows();
    rows.push_back({"Refresh:", wxString::Format("%ld", 1000L), wxTE_RIGHT});
    auto const fields = zenqo::BuildSamplerRows(this, rows);
    m_samples = fields[0];
    m_burnin = fields[1];
    m_chains = fields[2];
    m_thin = fields[3];
    m_seed = fields[4];
    m_refresh = fields[5];
}

wxString GibbsPickerStan::GetSamples() const { return m_samples->GetValue(); }

wxString GibbsPickerStan::GetBurnin() const { return m_burnin->GetValue(); }

wxString GibbsPickerStan::GetChains() const { return m_chains->GetValue(); }

wxString GibbsPickerStan::GetThin() const { return m_thin->GetValue(); }

wxString GibbsPickerStan::GetSeed() const { return m_seed->GetValue(); }

wxString GibbsPickerStan::GetRefresh() const { return m_refresh->GetValue(); }

bool GibbsPickerStan::ValidateInput(wxString& message) const
{
    return zenqo::ValidateSampler({m_burnin, m_chains, m_thin, m_seed}, message)
           && zenqo::ValidateCount(m_refresh, "The refresh rate must be\na positive ineteger.", message);
}

void GibbsPickerStan::EnableBurnin(bool enable) { m_burnin->Enable(enable); }

void GibbsPickerStan::EnableChains(bool enable) { m_chains->Enable(enable); }

void GibbsPickerStan::EnableThin(bool enable) { m_thin->Enable(enable); }
