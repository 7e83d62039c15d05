#include "panes/ModelsPane.h"

#include "common/MapKeys.h"
#include "common/NameList.h"

ModelsPane::ModelsPane(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxSize(200, 300), wxTAB_TRAVERSAL | wxBORDER_NONE),
      m_list(zenqo::BuildNameList(this)), m_listFont(zenqo::WorkspaceFont())
{
}

wxListBox* ModelsPane::GetList() const { return m_list; }

void ModelsPane::Update(ModelMap* models) { zenqo::ShowNames(m_list, zenqo::KeysOf(*models), m_listFont); }
