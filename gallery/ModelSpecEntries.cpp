#include <wx/frame.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "modelspec/VariablePickerMark.h"

namespace
{
wxTopLevelWindow* Mark(Shelf& shelf)
{
    return FrameAround(
        [&shelf](wxFrame* frame)
        {
            auto* const picker = new VariablePickerMark(frame, &shelf.datasets);
            SelectInFirstList(picker, {5});
            wxCommandEvent event;
            picker->OnUpperButton(event);
            return picker;
        });
}
} // namespace

std::vector<Entry> ModelSpecEntries()
{
    return {
        {"modelspec", "VariablePickerMark", Mark},
    };
}
