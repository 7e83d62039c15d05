#include "common/ExampleLine.h"

#include <wx/font.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "common/TextLabel.h"

namespace zenqo
{
void AddExampleLine(wxWindow* parent, wxSizer* sizer, wxString const& text, wxFont const& font,
                    int textFlags)
{
    auto* const line = new wxFlexGridSizer(1, 2, 0, 0);
    line->AddGrowableCol(1, 1);
    sizer->Add(line, 0, wxEXPAND, 5);
    auto* const word = MakeTextLabel(parent, "Example:", wxSize(67, 23));
    word->SetFont(font.Bold());
    line->Add(word, 0, wxLEFT, 5);
    auto* const example = MakeTextLabel(parent, text, wxSize(310, 23));
    example->SetFont(font);
    line->Add(example, 0, textFlags, 2);
}
} // namespace zenqo
