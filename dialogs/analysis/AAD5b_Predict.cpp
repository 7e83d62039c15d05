#include "dialogs/analysis/AAD5b_Predict.h"

#include "common/ActionArguments.h"
#include "common/ActionControls.h"
#include "common/ActionFrame.h"
#include "common/ActionOptions.h"
#include "common/Predictions.h"
#include "pickers/NotePanel.h"

AAD5b_Predict::AAD5b_Predict(wxWindow* parent, std::vector<std::string>& arguments)
    : wxDialog(parent, wxID_ANY, zenqo::PREDICTIONS_TITLE, wxDefaultPosition, zenqo::ACTION_SIZE,
               zenqo::ACTION_STYLE)
{
    auto* const sizer = zenqo::BeginPredictions(this, arguments);
    m_types = zenqo::AddTypeBox(this, sizer, "Type of predictions to be generated",
                                zenqo::EntriesFrom(arguments, 5), 2);
    m_predictions = std::make_unique<zenqo::Predictions>(this, sizer, arguments);
    zenqo::FinishActionWithAnyNote<NotePanel>(this, sizer, arguments[4]);
    Bind(wxEVT_BUTTON, &AAD5b_Predict::OnButtonOk, this, wxID_OK);
}

AAD5b_Predict::~AAD5b_Predict() = default;

std::string AAD5b_Predict::GetVarName() const { return m_predictions->PrefixOption(); }

std::string AAD5b_Predict::GetParameterPoint() const { return m_predictions->ParameterOption(); }

std::string AAD5b_Predict::GetType() const { return zenqo::TypeOption(m_types); }

void AAD5b_Predict::OnButtonOk(wxCommandEvent& event) { m_predictions->Accept(this, event); }
