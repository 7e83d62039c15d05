#include "common/NameList.h"

#include <wx/font.h>
#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/sizer.h>

namespace zenqo
{
wxListBox* BuildNameList(wxPanel* panel)
{
    auto* const list = new wxListBox(panel, wxID_ANY, wxDefaultPosition, wxSize(200, 300), 0, nullptr,
                                     wxLB_SINGLE | wxLB_HSCROLL);
    auto* const sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(list, 1, wxEXPAND, 0);
    panel->SetSizer(sizer);
    panel->Layout();
    return list;
}

wxFont WorkspaceFont() { return wxFont(wxFontInfo(10).Family(wxFONTFAMILY_MODERN)); }

void ShowNames(wxListBox* list, wxArrayString const& names, wxFont const& font)
{
    list->Clear();
    if (!names.empty())
        list->Append(names);
    list->SetFont(font);
}
} // namespace zenqo
