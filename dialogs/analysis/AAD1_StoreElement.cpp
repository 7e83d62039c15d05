#include "dialogs/analysis/AAD1_StoreElement.h"

#include <wx/textctrl.h>

#include "common/ActionControls.h"
#include "common/ActionFrame.h"
#include "pickers/NotePanel.h"

AAD1_StoreElement::AAD1_StoreElement(wxWindow* parent, std::vector<std::string>& arguments)
    : wxDialog(parent, wxID_ANY, "Store model element to dataset", wxDefaultPosition,
               zenqo::TALL_ACTION_SIZE, zenqo::ACTION_STYLE)
{
    auto* const sizer = zenqo::BeginAction(this,
                                           "Storing " + zenqo::ToWide(arguments[0]) + " from model \""
                                               + zenqo::ToWide(arguments[1]) + "\" in dataset \""
                                               + zenqo::ToWide(arguments[2]) + "\".",
                                           zenqo::SentenceWidth::NARROW);
    m_name = zenqo::AddNameRow(this, sizer, arguments[3], arguments[4]);
    zenqo::FinishActionWithNote<NotePanel>(this, sizer, arguments[5]);
    Bind(wxEVT_BUTTON, &AAD1_StoreElement::OnButtonOk, this, wxID_OK);
}

std::string AAD1_StoreElement::GetVarName() const { return zenqo::ToNarrow(m_name->GetValue()); }

void AAD1_StoreElement::OnButtonOk(wxCommandEvent& event)
{
    auto const complaint = zenqo::ComplainOfName(
        m_name->GetValue(), "Please provide a name for the new variable.",
        "The variable name must not contain spaces\nor special characters and it must not begin\nwith a "
        "number.");
    zenqo::AcceptUnless(complaint, this, event);
}
