#include "dialogs/analysis/AAD0_NotReady.h"

#include "common/ActionFrame.h"

AAD0_NotReady::AAD0_NotReady(wxWindow* parent, std::vector<std::string>&)
    : wxDialog(parent, wxID_ANY, "Funtion not implemented", wxDefaultPosition, zenqo::ACTION_SIZE,
               zenqo::ACTION_STYLE)
{
    auto* const sizer = zenqo::BeginAction(this, "This function has not been implemented yet.",
                                           zenqo::SentenceWidth::NARROW);
    zenqo::FinishAction(this, sizer);
    Bind(wxEVT_BUTTON, &AAD0_NotReady::OnButtonOk, this, wxID_OK);
}

void AAD0_NotReady::OnButtonOk(wxCommandEvent& event) { event.Skip(); }
