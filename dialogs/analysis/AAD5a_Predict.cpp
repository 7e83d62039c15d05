#include "dialogs/analysis/AAD5a_Predict.h"

#include "common/ActionFrame.h"
#include "common/Predictions.h"
#include "pickers/NotePanel.h"

AAD5a_Predict::AAD5a_Predict(wxWindow* parent, std::vector<std::string>& arguments)
    : wxDialog(parent, wxID_ANY, zenqo::PREDICTIONS_TITLE, wxDefaultPosition, zenqo::TALL_ACTION_SIZE,
               zenqo::ACTION_STYLE)
{
    auto* const sizer = zenqo::BeginPredictions(this, arguments);
    m_predictions = std::make_unique<zenqo::Predictions>(this, sizer, arguments);
    zenqo::FinishActionWithNote<NotePanel>(this, sizer, arguments[4]);
    Bind(wxEVT_BUTTON, &AAD5a_Predict::OnButtonOk, this, wxID_OK);
}

AAD5a_Predict::~AAD5a_Predict() = default;

std::string AAD5a_Predict::GetVarName() const { return m_predictions->PrefixOption(); }

std::string AAD5a_Predict::GetParameterPoint() const { return m_predictions->ParameterOption(); }

void AAD5a_Predict::OnButtonOk(wxCommandEvent& event) { m_predictions->Accept(this, event); }
