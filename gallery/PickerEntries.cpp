#include <wx/frame.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "pickers/DatasetPicker.h"
#include "pickers/MatrixPicker.h"
#include "pickers/ModelPicker.h"

namespace
{
/// A choice picker with the names of a map, the first of them chosen.
template <class Picker, class Map>
wxTopLevelWindow* ChoicePicker(Map const& map)
{
    return FrameAround(
        [&map](wxFrame* frame)
        {
            auto* const picker = new Picker(frame);
            wxArrayString names;
            for (auto const& entry : map)
                names.Add(wxString(entry.first.c_str(), wxConvLibc));
            picker->SetChoices(names);
            picker->SetSelection(0);
            return picker;
        });
}
} // namespace

std::vector<Entry> PickerEntries()
{
    return {
        {"pickers", "DatasetPicker", [](Shelf& shelf) { return ChoicePicker<DatasetPicker>(shelf.datasets); }},
        {"pickers", "MatrixPicker", [](Shelf& shelf) { return ChoicePicker<MatrixPicker>(shelf.matrices); }},
        {"pickers", "ModelPicker", [](Shelf& shelf) { return ChoicePicker<ModelPicker>(shelf.models); }},
    };
}
