#include "panes/MatricesPane.h"

#include "common/MapKeys.h"
#include "common/NameList.h"

MatricesPane::MatricesPane(wxWindow* parent)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxSize(200, 300), wxTAB_TRAVERSAL | wxBORDER_NONE),
      m_list(zenqo::BuildNameList(this)), m_listFont(zenqo::WorkspaceFont())
{
}

wxListBox* MatricesPane::GetList() const { return m_list; }

void MatricesPane::Update(MatrixMap* matrices) { zenqo::ShowNames(m_list, zenqo::KeysOf(*matrices), m_listFont); }
