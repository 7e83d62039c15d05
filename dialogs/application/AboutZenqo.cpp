#include "dialogs/application/AboutZenqo.h"

#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

#include "common/FittedDialog.h"
#include "common/SizerItem.h"
#include "common/SystemIcon.h"
#include "common/TextLabel.h"
#include "common/TypewriterFont.h"

namespace
{
constexpr char VERSION[] = "2.5";
constexpr wchar_t CREDITS[]
    = L"Copyright © 2026 Zenqo authors\n  Department of Econometrics\n  University of Zenqo";

struct Style
{
    wxFont font;
    long align;
    int flags;
    int border;
};

void AddText(wxDialog* dialog, wxSizer* sizer, wxString const& label, Style const& style)
{
    auto* const text = zenqo::MakeTextLabel(dialog, label, wxSize(230, -1), style.align);
    text->SetFont(style.font);
    zenqo::AddWithFlags(sizer, text, 0, style.flags, style.border);
}
} // namespace

AboutZenqo::AboutZenqo(wxWindow* parent)
    : wxDialog(parent, wxID_ANY, "About Zenqo", wxDefaultPosition, wxSize(400, 260),
               zenqo::TELLING_DIALOG_STYLE)
{
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    auto* const columns = new wxFlexGridSizer(1, 3, 0, 0);
    columns->AddGrowableCol(1, 1);
    sizer->Add(columns, 0, wxEXPAND | wxALL, 5);
    auto* const logo = new wxStaticBitmap(this, wxID_ANY, zenqo::SystemIcon("Logo192.png"));
    zenqo::AddWithFlags(columns, logo, 0, wxEXPAND | wxALIGN_CENTER | wxRIGHT, 20);
    columns->Add(0, 0, 1, wxEXPAND, 5);
    auto* const texts = new wxFlexGridSizer(3, 1, 0, 0);
    columns->Add(texts, 0, wxEXPAND, 5);

    AddText(this, texts, wxString("\nZenqo v.") + VERSION + "\n",
            {wxFontInfo(15).Slant().Bold(), wxALIGN_CENTRE_HORIZONTAL, wxALIGN_CENTER | wxTOP, 5});
    AddText(this, texts, "Zenqo Statistical Workbench\n",
            {wxFontInfo(10).Italic(), wxALIGN_CENTRE_HORIZONTAL, wxEXPAND | wxALIGN_CENTER | wxBOTTOM, 25});
    AddText(this, texts, CREDITS,
            {zenqo::TypewriterFont(10), wxALIGN_LEFT, wxEXPAND | wxALL, 5});

    zenqo::AddCloseRow(this, sizer, wxID_OK);
    zenqo::FitDialog(this, sizer);
}
