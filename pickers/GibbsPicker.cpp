#include "pickers/GibbsPicker.h"

#include <wx/textctrl.h>

#include "common/SamplerRows.h"

GibbsPicker::GibbsPicker(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0)
{
    auto const fields = zenqo::BuildSamplerRows(this, zenqo::DefaultSamplerRows());
    m_samples = fields[0];
    m_burnin = fields[1];
    m_chains = fields[2];
    m_thin = fields[3];
    m_seed = fields[4];
}

wxString GibbsPicker::GetSamples() const { return m_samples->GetValue(); }

wxString GibbsPicker::GetBurnin() const { return m_burnin->GetValue(); }

wxString GibbsPicker::GetChains() const { return m_chains->GetValue(); }

wxString GibbsPicker::GetThin() const { return m_thin->GetValue(); }

wxString GibbsPicker::GetSeed() const { return m_seed->GetValue(); }

bool GibbsPicker::ValidateInput(wxString& message) const
{
    return zenqo::ValidateSampler({m_burnin, m_chains, m_thin, m_seed}, message);
}
