#include "common/Warning.h"

#include <wx/msgdlg.h>

namespace zenqo
{
void ShowWarning(wxWindow* parent, wxString const& text, long icon)
{
    wxMessageBox(text, "Warning", wxOK | icon, parent);
}
} // namespace zenqo
