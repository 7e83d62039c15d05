// How long the choice pickers take for a thousand names, and a picker with two lists for thousands.

#include <wx/choice.h>
#include <wx/frame.h>
#include <wx/listbox.h>

#include "benchmarks/Families.h"
#include "benchmarks/Harness.h"
#include "pickers/DatasetPicker.h"
#include "pickers/DrawsPicker.h"
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

/// Two models with as many draws each.
ModelMap TwoModels(int draws)
{
    auto model = std::make_shared<Model>();
    for (int i = 0; i < draws; ++i)
        model->drawNames.push_back("draw" + std::to_string(i));
    return {{"a", model}, {"b", std::make_shared<Model>(*model)}};
}

/// Changes from one of two models to the other, against the least calls on a bare list, and against
/// half as many draws.
void MeasureDraws(Table& table, wxFrame* frame)
{
    auto few = TwoModels(10000);
    auto many = TwoModels(20000);
    auto* const picker = new DrawsPicker(frame, &few, 200, 20, "Draws");
    auto* const larger = new DrawsPicker(frame, &many, 200, 20, "Draws");
    auto* const bare = new wxListBox(frame, wxID_ANY, wxDefaultPosition, wxSize(180, 200), 0, nullptr,
                                     wxLB_EXTENDED | wxHSCROLL);
    wxArrayString names;
    for (std::string const& name : few.at("a")->drawNames)
        names.Add(name);
    bare->Append(names);
    int model = 0;
    auto const change = [&] { return Seconds([&] { picker->SetSelection(model = 1 - model); }); };
    table.Compare({"DrawsPicker, 10,000 draws: against a bare list", 2}, change,
                  [&]
                  {
                      return Seconds(
                          [&]
                          {
                              bare->Clear();
                              bare->Append(names);
                          });
                  },
                  15);
    table.Compare({"DrawsPicker, 20,000 draws: against 10,000", 2.3},
                  [&] { return Seconds([&] { larger->SetSelection(model = 1 - model); }); }, change, 15);
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
    MeasureDraws(table, frame);
    frame->Destroy();
}
} // namespace benchmarks
