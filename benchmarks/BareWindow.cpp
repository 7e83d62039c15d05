// The least program with a window: what the start of the workbench is compared with.

#include <wx/app.h>
#include <wx/frame.h>

namespace
{
class BareApp : public wxApp
{
public:
    bool OnInit() override { return (new wxFrame(nullptr, wxID_ANY, "Bare window"))->Show(); }
};
} // namespace

wxIMPLEMENT_APP(BareApp);
