#include "common/PriorChoice.h"

#include <wx/button.h>
#include <wx/panel.h>
#include <wx/radiobut.h>

namespace zenqo
{
namespace
{
constexpr int ID_DEFINE = 6022;
}

std::tuple<wxRadioButton*, wxRadioButton*, wxButton*> MakePriorChoice(wxPanel* panel,
                                                                      wxSize const& size)
{
    auto* const standard = new wxRadioButton(panel, wxID_ANY, "Default", wxDefaultPosition, size);
    auto* const custom = new wxRadioButton(panel, wxID_ANY, "Custom", wxDefaultPosition, size);
    auto* const define = new wxButton(panel, ID_DEFINE, "&Define", wxDefaultPosition, size);
    define->Enable(false);
    standard->SetValue(true);
    return {standard, custom, define};
}
} // namespace zenqo
