#include "dialogs/analysis/CompareModelsDialog.h"

#include <wx/notebook.h>
#include <wx/radiobox.h>

#include "common/DialogFrame.h"
#include "common/RadioBox.h"
#include "common/Warning.h"
#include "modelspec/PriorDialog.h"
#include "modelspec/PriorGrid.h"
#include "modelspec/PriorProbPicker.h"
#include "pickers/ModelPickerPMP.h"
#include "pickers/NotePanel.h"

namespace
{
constexpr int ID_DEFINE = 6022;
constexpr int ID_DEFAULT = 6023;

constexpr char NOTE[]
    = "All models in memory with available log-ML are listed here. However, model comparison is valid "
      "only among models with the same dependent variable(s) and which were estimated using the same "
      "set of observations.";

std::vector<std::string> ModelsWithLogML(ModelMap const& models)
{
    std::vector<std::string> names;
    for (auto const& [name, model] : models)
        if (model->results.count("logML") != 0)
            names.push_back(name);
    return names;
}

Eigen::MatrixXd EqualPriors(wxArrayString const& names)
{
    auto const count = static_cast<Eigen::Index>(names.size());
    return Eigen::MatrixXd::Constant(count, 1, 1.0 / static_cast<double>(count));
}

bool AreProbabilities(Eigen::MatrixXd const& priors)
{
    // The bounds are decimal, and so are the numbers that the user types: their sum may miss a bound
    // that it should meet, as that of 0.5 and 0.500001 does, by what is lost in the last bits.
    constexpr double LAST_BITS = 1e-11;
    double const sum = priors.sum();
    return priors.size() > 0 && sum >= 0.999999 - LAST_BITS && sum <= 1.000001 + LAST_BITS
           && priors.minCoeff() > 0.0;
}
} // namespace

CompareModelsDialog::CompareModelsDialog(wxWindow* parent, ModelMap* models)
    : wxDialog(parent, wxID_ANY, "Compare Models")
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const box = zenqo::AddLabelledBox(this, sizer, "Select Models to Compare");
    m_models = new ModelPickerPMP(box->GetStaticBox(), ModelsWithLogML(*models));
    box->Add(m_models, 1, wxEXPAND, 5);
    auto* const note = new NotePanel(box->GetStaticBox(), NOTE, wxDefaultSize, true);
    box->Add(note, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5);

    auto* const priors = new wxStaticBoxSizer(wxHORIZONTAL, this, "Prior Model Probabilities");
    sizer->Add(priors, 0, wxEXPAND | wxLEFT | wxRIGHT | wxBOTTOM, 5);
    m_priorChoice = new PriorProbPicker(priors->GetStaticBox());
    priors->Add(m_priorChoice, 3, wxEXPAND, 5);

    m_approximation = zenqo::AddRadioBox(
        this, sizer, "Approximation of the log-ML",
        {"Use the Lewis-Raftery approximation of the log-ML for all models",
         "Use the Chib-Jeliazkov approximation of the log-ML if available"});
    zenqo::AddFocusedButtonRow(this, sizer);
    zenqo::LayOutAroundNote(this, sizer, note);

    Bind(wxEVT_BUTTON, &CompareModelsDialog::OnButtonOk, this, wxID_OK);
    Bind(wxEVT_BUTTON, &CompareModelsDialog::OnDefinePriorProbButton, this, ID_DEFINE);
    Bind(wxEVT_BUTTON, &CompareModelsDialog::OnDefaultPriorProb, this, ID_DEFAULT);
}

wxArrayString CompareModelsDialog::GetModelsNames() const { return m_models->GetRhsModels(); }

bool CompareModelsDialog::GetCJ() const { return m_approximation->GetSelection() != 0; }

bool CompareModelsDialog::GetDefaultPriors() const
{
    return m_priorChoice->GetDefaultOption() || !m_priorDialog;
}

Eigen::MatrixXd CompareModelsDialog::GetCustomPriors() const { return m_priors; }

void CompareModelsDialog::WritePriorProbOnDialog()
{
    if (!m_priorDialog)
        return;
    auto* const notebook = m_priorDialog->GetNotebook();
    auto const names = GetModelsNames();
    m_priorGrid = new PriorGrid(notebook, names, EqualPriors(names));
    notebook->AddPage(m_priorGrid, "Prior model probabilities");
}

void CompareModelsDialog::RewritePriorProbOnDialog()
{
    if (!m_priorGrid)
        return;
    auto const names = GetModelsNames();
    m_priorGrid->RedrawGrid(names, EqualPriors(names));
}

void CompareModelsDialog::MakePriorDialog()
{
    wxString title = "Prior model probabilities";
    m_priorDialog = new PriorDialog(this, title, wxEmptyString);
    // A dialog keeps the presses on its buttons to itself.
    m_priorDialog->Bind(wxEVT_BUTTON, [this](wxCommandEvent& press) { ProcessWindowEvent(press); },
                        ID_DEFAULT);
    WritePriorProbOnDialog();
}

void CompareModelsDialog::OnDefaultPriorProb(wxCommandEvent&) { RewritePriorProbOnDialog(); }

bool CompareModelsDialog::AskForPriors()
{
    if (m_priorDialog->ShowModal() != wxID_OK)
        return false;
    m_priors = m_priorGrid->ReadFields();
    return true;
}

void CompareModelsDialog::OnDefinePriorProbButton(wxCommandEvent&)
{
    if (!m_priorDialog)
        MakePriorDialog();
    if (m_models->GetChanged())
    {
        RewritePriorProbOnDialog();
        m_models->SetChanged(false);
    }
    if (auto const none = zenqo::ComplainOfNone(GetModelsNames(), "models"); !none.empty())
        return zenqo::ShowWarning(this, none);
    if (!AskForPriors())
        return;
    while (!AreProbabilities(m_priors))
    {
        zenqo::ShowWarning(this, "Prior model probabilities must be\npositive and sum to one.\n");
        AskForPriors();
    }
}

wxString CompareModelsDialog::Complaint(wxArrayString const& names) const
{
    if (m_priors.rows() != static_cast<Eigen::Index>(names.size()))
        return "The number of selected models does not\nmatch the number of prior model probabilities."
               "\n\nRe-define the prior model probabilities\nor use the defaults.";
    return zenqo::ComplainOfNone(names, "models");
}

void CompareModelsDialog::OnButtonOk(wxCommandEvent& event)
{
    auto const names = GetModelsNames();
    if (GetDefaultPriors())
        m_priors = EqualPriors(names);
    zenqo::AcceptUnless(Complaint(names), this, event);
}
