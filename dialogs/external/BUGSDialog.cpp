#include "dialogs/external/BUGSDialog.h"

#include "common/SamplerDialog.h"
#include "common/SamplerSettings.h"
#include "dialogs/external/InitsNotebook.h"
#include "pickers/GibbsPicker.h"
#include "pickers/ScriptPicker.h"
#include "pickers/StorePicker.h"
#include "pickers/TextPicker.h"

BUGSDialog::BUGSDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "BUGS Interface", wxDefaultPosition, wxDefaultSize,
               zenqo::PROGRAM_DIALOG_STYLE)
{
    std::tie(m_notebook, m_dataPage, m_initsPage, m_inits, m_script, m_sampler, m_store)
        = zenqo::BuildSamplerDialog<InitsNotebook, ScriptPicker, GibbsPicker, StorePicker>(
            this, {"Data && Parameters", "BUGS Model File", "Location of the OpenBUGS model file:"},
            [this](wxPanel* page) { FillDataPage(page); });
    Bind(wxEVT_BUTTON, &BUGSDialog::OnButtonOk, this, wxID_OK);
}

void BUGSDialog::FillDataPage(wxPanel* page)
{
    auto* const boxes = new wxBoxSizer(wxVERTICAL);
    m_data = zenqo::AddNamesBox<TextPicker>(page, boxes, "Data to Pass to OpenBUGS",
                                            zenqo::DATA_EXAMPLE);
    m_monitor = zenqo::AddNamesBox<TextPicker>(page, boxes, "Parameters to Monitor",
                                               zenqo::PARAMETERS_EXAMPLE);
    m_summary = zenqo::AddNamesBox<TextPicker>(page, boxes, "Parameters to Summarize",
                                               zenqo::PARAMETERS_EXAMPLE);
    zenqo::LayOutPage(page, boxes);
}

BUGSDialog::~BUGSDialog()
{
    zenqo::DeleteInOrder({m_data, m_monitor, m_script, m_sampler, m_store, m_notebook});
}

std::map<std::string, std::string> BUGSDialog::GetInits() const { return m_inits->GetInits(); }

std::string BUGSDialog::GetData() const { return m_data->GetText(); }

std::string BUGSDialog::GetMonitor() const { return m_monitor->GetText(); }

std::string BUGSDialog::GetSumMonitor() const { return m_summary->GetText(); }

std::string BUGSDialog::GetScript() const { return m_script->GetText(); }

bool BUGSDialog::GetStoreState() const { return m_store->GetStoreState(); }

wxString BUGSDialog::GetModelName() const { return m_store->GetModelName(); }

Eigen::VectorXd BUGSDialog::GetGibbsParams() const { return m_settings; }

unsigned long long BUGSDialog::GetSamples() const
{
    return zenqo::LargeSetting(m_sampler->GetSamples());
}

unsigned long long BUGSDialog::GetBurnin() const { return zenqo::LargeSetting(m_sampler->GetBurnin()); }

unsigned long long BUGSDialog::GetSeed() const { return zenqo::LargeSetting(m_sampler->GetSeed()); }

int BUGSDialog::GetThin() const { return zenqo::SmallSetting(m_sampler->GetThin()); }

int BUGSDialog::GetChains() const { return zenqo::SmallSetting(m_sampler->GetChains()); }

void BUGSDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptSettings(this, m_sampler, m_settings, event);
}
