#include "common/ActionControls.h"

#include <wx/button.h>
#include <wx/font.h>
#include <wx/radiobut.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include "common/DialogFrame.h"
#include "common/Text.h"
#include "common/TextLabel.h"

namespace zenqo
{
namespace
{
wxRadioButton* AddRadio(wxStaticBoxSizer* box, wxSizer* grid, wxString const& label, long style,
                        int flags, wxSize const& size = wxDefaultSize)
{
    auto* const radio = new wxRadioButton(box->GetStaticBox(), wxID_ANY, label, wxDefaultPosition, size,
                                          style);
    grid->Add(radio, 0, flags, 5);
    return radio;
}

/// On which sides of each of `count` types there is a gap.
std::vector<int> TypeGaps(std::size_t count)
{
    if (count == 3)
        return {wxLEFT | wxTOP, wxRIGHT | wxTOP, wxLEFT | wxBOTTOM};
    return std::vector<int>(count, wxALL);
}
} // namespace

wxStaticBoxSizer* AddBoxToRow(wxDialog* dialog, wxSizer* row, wxString const& label)
{
    return AddLabelledBox(dialog, row, label, 1, wxEXPAND);
}

wxSpinCtrl* AddHorizonBox(wxDialog* dialog, wxSizer* row, wxString const& label, int periods)
{
    auto* const box = AddBoxToRow(dialog, row, label);
    auto* const spin = new wxSpinCtrl(box->GetStaticBox(), wxID_ANY, wxString::Format("%d", periods),
                                      wxDefaultPosition, wxDefaultSize, wxSP_ARROW_KEYS, 1, 999, periods,
                                      "wxSpinCtrl");
    spin->SetIncrement(1);
    box->Add(spin, 0, wxALL, 5);
    return spin;
}

std::pair<wxRadioButton*, wxRadioButton*> AddRadioPair(wxStaticBoxSizer* box, wxSizer* grid,
                                                       wxString const& first, wxString const& second)
{
    auto* const upper = AddRadio(box, grid, first, wxRB_GROUP, wxLEFT | wxRIGHT | wxTOP);
    auto* const lower = AddRadio(box, grid, second, 0, wxLEFT | wxRIGHT | wxBOTTOM);
    upper->SetValue(true);
    box->Add(grid, 1, wxEXPAND, 5);
    return {upper, lower};
}

std::pair<wxRadioButton*, wxButton*> AddDefineRow(wxStaticBoxSizer* box, wxSizer* grid,
                                                  wxString const& label, int flags)
{
    auto* const row = new wxFlexGridSizer(1, 2, 0, 0);
    auto* const radio = AddRadio(box, row, label, 0, wxRIGHT);
    auto* const define = new wxButton(box->GetStaticBox(), wxID_ANY, "&Define", wxDefaultPosition,
                                      wxSize(-1, 25));
    define->Enable(false);
    row->Add(define, 0, wxRIGHT | wxBOTTOM, 5);
    grid->Add(row, 1, wxEXPAND | flags, 5);
    return {radio, define};
}

std::vector<wxRadioButton*> AddTypeBox(wxDialog* dialog, wxSizer* sizer, wxString const& caption,
                                       std::vector<std::string> const& labels, std::size_t count)
{
    auto* const box = AddLabelledBox(dialog, sizer, caption, 0, wxEXPAND | wxALL, 7);
    auto* const grid = new wxGridSizer(static_cast<int>(count + 1) / 2, 2, 0, 0);
    wxFont const font(wxNORMAL_FONT->GetPointSize(), wxFONTFAMILY_SCRIPT, wxFONTSTYLE_ITALIC,
                      wxFONTWEIGHT_NORMAL, false, "Courier 10 Pitch");
    auto const gaps = TypeGaps(count);
    std::vector<wxRadioButton*> types;
    for (std::size_t i = 0; i < count; ++i)
    {
        types.push_back(AddRadio(box, grid, ToWide(labels[i]), i == 0 ? wxRB_GROUP : 0, gaps[i],
                                 wxSize(190, -1)));
        types.back()->SetFont(font);
    }
    if (count % 2 != 0)
        grid->Add(0, 0, 0, wxRIGHT | wxBOTTOM, 5);
    types.front()->SetValue(true);
    box->Add(grid, 1, wxEXPAND, 5);
    return types;
}

wxTextCtrl* AddNameRow(wxDialog* dialog, wxSizer* sizer, std::string const& label,
                       std::string const& value)
{
    auto* const row = new wxFlexGridSizer(1, 2, 0, 20);
    row->AddGrowableCol(1);
    row->SetFlexibleDirection(wxHORIZONTAL);
    row->Add(MakeTextLabel(dialog, ToWide(label), wxSize(-1, 20)), 0, wxALIGN_BOTTOM, 7);
    auto* const field = new wxTextCtrl(dialog, wxID_ANY, ToWide(value));
    row->Add(field, 0, wxEXPAND, 7);
    sizer->Add(row, 0, wxEXPAND | wxALL, 7);
    return field;
}
} // namespace zenqo
