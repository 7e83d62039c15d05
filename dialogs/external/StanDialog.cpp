#include "dialogs/external/StanDialog.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/textctrl.h>

#include "common/SamplerDialog.h"
#include "common/SamplerSettings.h"
#include "common/Text.h"
#include "common/TextLabel.h"
#include "common/TypewriterFont.h"
#include "dialogs/external/InitsNotebook.h"
#include "pickers/GibbsPickerStan.h"
#include "pickers/OutputFilePicker.h"
#include "pickers/ScriptPicker.h"
#include "pickers/StorePicker.h"
#include "pickers/TextPicker.h"

namespace
{
enum Method
{
    SAMPLE,
    VARIATIONAL,
    OPTIMIZE
};

char const* const METHODS[] = {"sample", "variational", "optimize"};

bool IsMethod(int method) { return SAMPLE <= method && method <= OPTIMIZE; }
} // namespace

StanDialog::StanDialog(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "Stan Interface", wxDefaultPosition, wxDefaultSize,
               zenqo::PROGRAM_DIALOG_STYLE)
{
    std::tie(m_notebook, m_dataPage, m_initsPage, m_inits, m_script, m_sampler, m_store)
        = zenqo::BuildSamplerDialog<InitsNotebook, ScriptPicker, GibbsPickerStan, StorePicker>(
            this, {"Data && Options", "Stan Model File", "Location of the Stan model file:"},
            [this](wxPanel* page) { FillDataPage(page); },
            [this](zenqo::SamplerFrame const& frame)
            { FillMethod(zenqo::AddSettingsBox(frame, "Stan Method")); });
    Bind(wxEVT_BUTTON, &StanDialog::OnButtonOk, this, wxID_OK);
    m_method->Bind(wxEVT_CHOICE, &StanDialog::OnChangeChoice, this);
}

void StanDialog::FillDataPage(wxPanel* page)
{
    // It was made for two boxes and holds three. At the third the toolkit would complain and let the
    // number of rows follow from what is in them; it is told so before, and does not complain.
    auto* const boxes = new wxFlexGridSizer(2, 1, 0, 0);
    boxes->AddGrowableRow(0, 100);
    boxes->SetRows(0);

    m_data = zenqo::AddNamesBox<TextPicker>(page, boxes, "Data to Pass to Stan",
                                            zenqo::DATA_EXAMPLE);
    auto* const files = zenqo::AddPageBox(page, boxes, "Stan Output Files");
    m_outputFile = zenqo::FillBox<OutputFilePicker>(files, "output file");
    m_diagnosticFile = zenqo::FillBox<OutputFilePicker>(files, "diagnostic file");
    FillOptions(zenqo::AddPageBox(page, boxes, "Additional Options"));
    zenqo::LayOutPage(page, boxes);
}

void StanDialog::FillOptions(wxStaticBoxSizer* box)
{
    auto* const inBox = box->GetStaticBox();
    auto* const rows = new wxFlexGridSizer(2, 1, 0, 0);
    box->Add(rows, 1, wxEXPAND, 5);

    auto* const checks = new wxFlexGridSizer(1, 2, 0, 0);
    checks->AddGrowableCol(1, 1);
    rows->Add(checks, 1, wxEXPAND, 5);
    m_summarize = new wxCheckBox(inBox, wxID_ANY, "Summarize within Stan");
    m_diagnose = new wxCheckBox(inBox, wxID_ANY, "Diagnose within Stan");
    for (wxCheckBox* const check : {m_summarize, m_diagnose})
    {
        check->SetValue(true);
        checks->Add(check, 0, wxALL, 5);
    }

    auto* const options = new wxFlexGridSizer(2, 1, 0, 0);
    rows->Add(options, 1, wxEXPAND, 5);
    options->Add(zenqo::MakeTextLabel(inBox, "Additional command-line options to pass to Stan:",
                                      wxSize(400, -1)),
                 0, wxLEFT | wxRIGHT | wxTOP, 5);
    m_options = new wxTextCtrl(inBox, wxID_ANY);
    m_options->SetFont(zenqo::TypewriterFont(10));
    options->Add(m_options, 0, wxEXPAND | wxALL, 5);
}

void StanDialog::FillMethod(wxStaticBoxSizer* box)
{
    auto* const inBox = box->GetStaticBox();
    auto* const row = new wxFlexGridSizer(1, 3, 0, 0);
    row->AddGrowableCol(1, 100);
    box->Add(row, 1, wxEXPAND, 5);
    row->Add(zenqo::MakeTextLabel(inBox, "Stan method:", wxSize(120, 23)), 0,
             wxALIGN_CENTER_VERTICAL | wxALL, 5);
    row->Add(1, 1);
    m_method = new wxChoice(inBox, wxID_ANY, wxDefaultPosition, wxSize(110, 30));
    for (char const* const method : METHODS)
        m_method->Append(method);
    m_method->SetSelection(0);
    row->Add(m_method, 0, wxALL, 5);
}

StanDialog::~StanDialog()
{
    zenqo::DeleteInOrder({m_data, m_script, m_sampler, m_store, m_notebook});
}

std::map<std::string, std::string> StanDialog::GetInits() const { return m_inits->GetInits(); }

std::string StanDialog::GetData() const { return m_data->GetText(); }

std::string StanDialog::GetOutputFile() const { return m_outputFile->GetFilename(); }

std::string StanDialog::GetDiagnosticFile() const { return m_diagnosticFile->GetFilename(); }

bool StanDialog::GetSummarizeState() const { return m_summarize->GetValue(); }

bool StanDialog::GetDiagnoseState() const { return m_diagnose->GetValue(); }

std::string StanDialog::GetOptions() const { return zenqo::ToNarrow(m_options->GetValue()); }

std::string StanDialog::GetScript() const { return m_script->GetText(); }

std::string StanDialog::GetMethod() const
{
    int const method = m_method->GetSelection();
    return IsMethod(method) ? METHODS[method] : "Zenqo internal error.";
}

bool StanDialog::GetStoreState() const { return m_store->GetStoreState(); }

wxString StanDialog::GetModelName() const { return m_store->GetModelName(); }

Eigen::VectorXd StanDialog::GetGibbsParams() const { return m_settings; }

unsigned long long StanDialog::GetSamples() const
{
    return zenqo::LargeSetting(m_sampler->GetSamples());
}

unsigned long long StanDialog::GetBurnin() const { return zenqo::LargeSetting(m_sampler->GetBurnin()); }

unsigned long long StanDialog::GetSeed() const { return zenqo::LargeSetting(m_sampler->GetSeed()); }

unsigned long long StanDialog::GetRefresh() const
{
    return zenqo::LargeSetting(m_sampler->GetRefresh());
}

int StanDialog::GetThin() const { return zenqo::SmallSetting(m_sampler->GetThin()); }

int StanDialog::GetChains() const { return zenqo::SmallSetting(m_sampler->GetChains()); }

void StanDialog::OnChangeChoice(wxCommandEvent&)
{
    int const method = m_method->GetSelection();
    if (!IsMethod(method))
        return;
    m_sampler->EnableChains(method == SAMPLE);
    m_sampler->EnableThin(method == SAMPLE);
    m_sampler->EnableBurnin(method != OPTIMIZE);
}

void StanDialog::OnButtonOk(wxCommandEvent& event)
{
    zenqo::AcceptSettings(this, m_sampler, m_settings, event);
}
