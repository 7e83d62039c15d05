#include "workbench/app/Overwrite.h"

#include <wx/filename.h>
#include <wx/msgdlg.h>

namespace workbench
{
bool MayWrite(wxFileName const& path, wxString const& caption, wxWindow* parent)
{
    return !path.FileExists()
           || wxMessageBox(path.GetFullName() + " exists. Replace it?", caption,
                           wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION, parent)
                  == wxYES;
}
} // namespace workbench
