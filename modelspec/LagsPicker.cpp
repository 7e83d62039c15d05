#include "modelspec/LagsPicker.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/sizer.h>
#include <wx/spinctrl.h>
#include <wx/stattext.h>

#include "common/Lags.h"
#include "common/ListBoxItems.h"
#include "common/RoleGrid.h"
#include "common/SizerItem.h"
#include "common/TextLabel.h"
#include "common/TransferButton.h"

LagsPicker::LagsPicker(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0)
{
    m_list = zenqo::MakeList(this, wxSize(50, -1), zenqo::LIST_OF_MANY);
    m_list->Append("1");
    LayOut();
    m_button->Bind(wxEVT_BUTTON, &LagsPicker::OnButton, this);
    m_list->Bind(wxEVT_LISTBOX, &LagsPicker::OnLagsSelected, this);
    for (auto* const spin : {m_from, m_to})
    {
        spin->Bind(wxEVT_SPINCTRL, &LagsPicker::OnSpinChanged, this);
        spin->Bind(wxEVT_TEXT, &LagsPicker::OnSpinChanged, this);
        spin->Bind(wxEVT_SET_FOCUS, &LagsPicker::OnSetFocusToSpin, this);
    }
}

void LagsPicker::LayOut()
{
    int const centred = wxALIGN_CENTER_VERTICAL | wxALIGN_CENTER_HORIZONTAL;
    auto* const range = new wxFlexGridSizer(3, 2, 0, 0);
    range->AddGrowableRow(1, 1);
    auto const addWord = [&](wxString const& word)
    {
        auto* const text = zenqo::MakeTextLabel(this, word, wxSize(40, 23));
        zenqo::AddWithFlags(range, text, 0, wxEXPAND | centred | wxTOP | wxLEFT, 5);
    };
    addWord("From:");
    m_from = MakeSpin();
    range->Add(m_from, 0, wxEXPAND | wxRIGHT | wxLEFT, 5);
    range->Add(1, 1, 1, wxEXPAND);
    range->Add(1, 1, 1, wxEXPAND);
    addWord("To:");
    m_to = MakeSpin();
    range->Add(m_to, 0, wxEXPAND | wxALL, 5);

    auto* const sizer = new wxFlexGridSizer(1, 3, 0, 0);
    sizer->Add(range, 0, wxEXPAND, 5);
    m_button = zenqo::MakeTransferButton(this, m_list, 42);
    zenqo::AddTransferButton(sizer, m_button);
    sizer->Add(m_list, 0, wxEXPAND | wxBOTTOM | wxLEFT, 5);
    // Past a spin control the keyboard could not get from the list to the button without
    // turning it round.
    m_list->MoveAfterInTabOrder(m_button);
    SetSizer(sizer, true);
    Layout();
}

wxSpinCtrl* LagsPicker::MakeSpin()
{
    auto* const spin = new wxSpinCtrl(this, wxID_ANY, "2", wxDefaultPosition, wxSize(120, -1),
                                      wxSP_ARROW_KEYS | wxSP_WRAP, -99, 99, 0);
    spin->SetIncrement(1);
    return spin;
}

std::vector<int> LagsPicker::GetLags() const { return zenqo::ExpandLags(zenqo::ItemsOf(m_list)); }

bool LagsPicker::GetChanged() const { return m_changed; }

void LagsPicker::SetChanged(bool changed) { m_changed = changed; }

void LagsPicker::OnLagsSelected(wxCommandEvent&)
{
    // The toolkit tells of freshly typed numbers once the focus goes, which is after this event, and
    // that would undo the click. What is taken over here it doesn't tell again.
    for (auto* const spin : {m_from, m_to})
        spin->SetValue(spin->GetValue());
    if (!m_list->IsEmpty())
        m_button->SetLabel(zenqo::MOVE_OUT);
}

void LagsPicker::OnSpinChanged(wxCommandEvent&)
{
    if (!zenqo::MovesIn(m_button))
        m_button->SetLabel(zenqo::MOVE_IN);
    zenqo::DeselectAll(m_list);
}

void LagsPicker::OnSetFocusToSpin(wxFocusEvent&)
{
    wxCommandEvent event;
    OnSpinChanged(event);
}

void LagsPicker::OnButton(wxCommandEvent&)
{
    m_changed = true;
    if (zenqo::MovesIn(m_button))
        m_list->Append(zenqo::LagEntry(m_from->GetValue(), m_to->GetValue()));
    else
        zenqo::DeleteItems(m_list, zenqo::SelectionsOf(m_list));
}
