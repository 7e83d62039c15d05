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
    auto const frame = zenqo::BuildSamplerFrame(this, "Data && Parameters", 3);
    m_notebook = frame.notebook;
    m_dataPage = frame.dataPage;
    FillDataPage();
    m_initsPage = frame.initsPage;
    m_inits = zenqo::FillInitsPage<InitsNotebook>(m_initsPage);

    m_script = zenqo::AddModelFile<ScriptPicker>(frame, "JAGS Model File",
                                                 "Location of the JAGS model file:");
    m_sampler = zenqo::AddSettings<GibbsPicker>(frame, "Gibbs Sampler Parameters");
    m_store = zenqo::AddSettings<StorePicker>(frame, "Store Model's Results");
    zenqo::FinishSamplerFrame(frame);
    Bind(wxEVT_BUTTON, &JAGSDialog::OnButtonOk, this, wxID_OK);
}

void JAGSDialog::FillDataPage()
{
    auto* const boxes = new wxBoxSizer(wxVERTICAL);
    m_data = zenqo::AddNamesBox<TextPicker>(m_dataPage, boxes, "Data to Pass to JAGS",
                                            zenqo::DATA_EXAMPLE);
    m_monitor = zenqo::AddNamesBox<TextPicker>(m_dataPage, boxes, "Parameters to Monitor",
                                               zenqo::PARAMETERS_EXAMPLE);
    zenqo::LayOutPage(m_dataPage, boxes);
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

unsigned long long JAGSDialog::GetSamples() const { return zenqo::LargeSetting(m_sampler->GetSamples()); }

unsigned long long JAGSDialog::GetBurnin() const { return zenqo::LargeSetting(m_sampler->GetBurnin()); }

unsigned long long JAGSDialog::GetSeed() const { return zenqo::LargeSetting(m_sampler->GetSeed()); }

int JAGSDialog::GetThin() const { return zenqo::SmallSetting(m_sampler->GetThin()); }

int JAGSDialog::GetChains() const { return zenqo::SmallSetting(m_sampler->GetChains()); }

void JAGSDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptSettings(this, m_sampler, m_settings, event);
}
