#pragma once

#include <tuple>

#include <wx/gdicmn.h>

class wxButton;
class wxPanel;
class wxRadioButton;

namespace zenqo
{
/// Makes the controls with which the user takes the default prior or defines one, each of size `size`:
/// "Default", which is chosen, "Custom", and "&Define", which is disabled and whose presses travel up
/// with the id 6022.
std::tuple<wxRadioButton*, wxRadioButton*, wxButton*> MakePriorChoice(wxPanel* panel,
                                                                      wxSize const& size);
} // namespace zenqo
