// How long the choice pickers take for a thousand names.

#include <wx/choice.h>
#include <wx/frame.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "pickers/DatasetPicker.h"
#include "pickers/MatrixPicker.h"
#include "pickers/ModelPicker.h"

namespace benchmarks
{
namespace
{
/// Gives `picker` the names, and a bare list the same by the toolkit's fastest call. Both are full
/// before, as they are whenever a workspace changes.
template <class Picker>
void Measure(Table& table, char const* name, wxFrame* frame, wxArrayString& names)
{
    auto* const picker = new Picker(frame);
    auto* const bare = new wxChoice(frame, wxID_ANY);
    table.Compare({std::string(name) + ", 1,000 names: against a bare list", 1.5},
                  [&] { return Seconds([&] { picker->SetChoices(names); }); },
                  [&] { return Seconds([&] { bare->Set(names); }); }, 15);
}
} // namespace

void MeasurePickers(Table& table)
{
    wxArrayString names;
    for (int i = 0; i < 1000; ++i)
        names.Add("name" + std::to_string(i));
    auto* const frame = new wxFrame(nullptr, wxID_ANY, "Pickers");
    Measure<DatasetPicker>(table, "DatasetPicker", frame, names);
    Measure<MatrixPicker>(table, "MatrixPicker", frame, names);
    Measure<ModelPicker>(table, "ModelPicker", frame, names);
    frame->Destroy();
}
} // namespace benchmarks
