#include "dialogs/external/JAGSDialog.h"

#include "common/SamplerDialog.h"
#include "common/SamplerSettings.h"
#include "dialogs/external/InitsNotebook.h"
#include "pickers/GibbsPicker.h"
#include "pickers/ScriptPicker.h"
#include "pickers/StorePicker.h"
#include "pickers/TextPicker.h"

JAGSDialog::JAGSDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "JAGS Interface", wxDefaultPosition, wxDefaultSize,
               zenqo::PROGRAM_DIALOG_STYLE)
{
    std::tie(m_notebook, m_dataPage, m_initsPage, m_inits, m_script, m_sampler, m_store)
        = zenqo::BuildSamplerDialog<InitsNotebook, ScriptPicker, GibbsPicker, StorePicker>(
            this, {"Data && Parameters", "JAGS Model File", "Location of the JAGS model file:"},
            [this](wxPanel* page) { FillDataPage(page); });
    Bind(wxEVT_BUTTON, &JAGSDialog::OnButtonOk, this, wxID_OK);
}

void JAGSDialog::FillDataPage(wxPanel* page)
{
    auto* const boxes = new wxBoxSizer(wxVERTICAL);
    m_data = zenqo::AddNamesBox<TextPicker>(page, boxes, "Data to Pass to JAGS",
                                            zenqo::DATA_EXAMPLE);
    m_monitor = zenqo::AddNamesBox<TextPicker>(page, boxes, "Parameters to Monitor",
                                               zenqo::PARAMETERS_EXAMPLE);
    zenqo::LayOutPage(page, boxes);
}

JAGSDialog::~JAGSDialog()
{
    zenqo::DeleteInOrder({m_data, m_monitor, m_script, m_sampler, m_store, m_notebook});
}

std::map<std::string, std::string> JAGSDialog::GetInits() const { return m_inits->GetInits(); }

std::string JAGSDialog::GetData() const { return m_data->GetText(); }

std::string JAGSDialog::GetMonitor() const { return m_monitor->GetText(); }

std::string JAGSDialog::GetScript() const { return m_script->GetText(); }

bool JAGSDialog::GetStoreState() const { return m_store->GetStoreState(); }

wxString JAGSDialog::GetModelName() const { return m_store->GetModelName(); }

Eigen::VectorXd JAGSDialog::GetGibbsParams() const { return m_settings; }

unsigned long long JAGSDialog::GetSamples() const
{
    return zenqo::LargeSetting(m_sampler->GetSamples());
}

unsigned long long JAGSDialog::GetBurnin() const { return zenqo::LargeSetting(m_sampler->GetBurnin()); }

unsigned long long JAGSDialog::GetSeed() const { return zenqo::LargeSetting(m_sampler->GetSeed()); }

int JAGSDialog::GetThin() const { return zenqo::SmallSetting(m_sampler->GetThin()); }

int JAGSDialog::GetChains() const { return zenqo::SmallSetting(m_sampler->GetChains()); }

void JAGSDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptSettings(this, m_sampler, m_settings, event);
}
