#include "dialogs/analysis/AAD2a_CalculateMFX.h"

#include "common/ActionArguments.h"
#include "common/ActionFrame.h"
#include "common/MarginalEffects.h"
#include "modelspec/UserPointDialog.h"
#include "pickers/NotePanel.h"

AAD2a_CalculateMFX::AAD2a_CalculateMFX(wxWindow* parent, std::vector<std::string>& arguments)
    : wxDialog(parent, wxID_ANY, zenqo::EFFECTS_TITLE, wxDefaultPosition, zenqo::ACTION_SIZE,
               zenqo::ACTION_STYLE)
{
    m_effects = std::make_unique<zenqo::MarginalEffects>(this, arguments[0],
                                                         zenqo::EntriesFrom(arguments, 2));
    zenqo::FinishActionWithAnyNote<NotePanel>(this, m_effects->Sizer(), arguments[1]);
    m_effects->Bind(this);
}

AAD2a_CalculateMFX::~AAD2a_CalculateMFX() = default;

std::string AAD2a_CalculateMFX::GetPoint() const { return m_effects->PointOption(); }

void AAD2a_CalculateMFX::OnDefaultPoint(wxCommandEvent&) { m_effects->LetDefine(false); }

void AAD2a_CalculateMFX::OnCustomPoint(wxCommandEvent&) { m_effects->LetDefine(true); }

void AAD2a_CalculateMFX::OnDefinePointButton(wxCommandEvent&) { m_effects->Ask(this, m_pointDialog); }
