#include "dialogs/analysis/AAD2c_CalculateMFX.h"

#include "common/ActionArguments.h"
#include "common/ActionControls.h"
#include "common/ActionFrame.h"
#include "common/ActionOptions.h"
#include "common/MarginalEffects.h"
#include "modelspec/UserPointDialog.h"
#include "pickers/NotePanel.h"

AAD2c_CalculateMFX::AAD2c_CalculateMFX(wxWindow* parent, std::vector<std::string>& arguments)
    : wxDialog(parent, wxID_ANY, zenqo::EFFECTS_TITLE, wxDefaultPosition, zenqo::ACTION_SIZE,
               zenqo::ACTION_STYLE)
{
    auto const [names, labels] = zenqo::ReadNamesAndLabels(arguments, 2);
    m_effects = std::make_unique<zenqo::MarginalEffects>(this, arguments[0], names);
    m_types = zenqo::AddTypeBox(this, m_effects->Sizer(), "Type of marginal effects to be calculated",
                                labels, 3);
    zenqo::FinishActionWithAnyNote<NotePanel>(this, m_effects->Sizer(), arguments[1]);
    m_effects->Bind(this);
}

AAD2c_CalculateMFX::~AAD2c_CalculateMFX() = default;

std::string AAD2c_CalculateMFX::GetPoint() const { return m_effects->PointOption(); }

std::string AAD2c_CalculateMFX::GetType() const { return zenqo::TypeOption(m_types); }

void AAD2c_CalculateMFX::OnDefaultPoint(wxCommandEvent&) { m_effects->LetDefine(false); }

void AAD2c_CalculateMFX::OnCustomPoint(wxCommandEvent&) { m_effects->LetDefine(true); }

void AAD2c_CalculateMFX::OnDefinePointButton(wxCommandEvent&) { m_effects->Ask(this, m_pointDialog); }
