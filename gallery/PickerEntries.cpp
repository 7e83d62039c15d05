#include <wx/checkbox.h>
#include <wx/filepicker.h>
#include <wx/frame.h>
#include <wx/radiobut.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include "gallery/Entry.h"
#include "gallery/Shelf.h"
#include "pickers/AdditionalPicker1.h"
#include "pickers/DatasetPicker.h"
#include "pickers/DrawsPicker.h"
#include "pickers/GibbsPicker.h"
#include "pickers/GibbsPickerStan.h"
#include "pickers/MatrixPicker.h"
#include "pickers/ModelPicker.h"
#include "pickers/ModelPickerPMP.h"
#include "pickers/NotePanel.h"
#include "pickers/OutputFilePicker.h"
#include "pickers/ScriptPicker.h"
#include "pickers/StorePicker.h"
#include "pickers/TextPicker.h"
#include "pickers/VariablePickerSingle.h"

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

/// A picker made of the frame and of `arguments`.
template <class Picker, class... Arguments>
wxTopLevelWindow* Alone(Arguments... arguments)
{
    return FrameAround([=](wxFrame* frame) mutable { return new Picker(frame, arguments...); });
}

wxTopLevelWindow* Note()
{
    NotePanel* note = nullptr;
    auto* const frame = FrameAround(
        [&note](wxFrame* parent)
        {
            wxString const text = "Burn-in draws are made <b>before</b> those that are retained, and are "
                                  "dropped. Choose as many as the sampler needs to forget where it began.";
            return note = new NotePanel(parent, text, wxDefaultSize, false);
        },
        wxSize(420, -1));
    frame->Layout();
    note->ResizeNoteWindow();
    frame->SetClientSize(420, note->GetMinSize().y);
    return frame;
}

wxTopLevelWindow* CustomOutputFile()
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const picker = new OutputFilePicker(frame, "output file");
            // The second of the two radio buttons.
            Choose(dynamic_cast<wxRadioButton*>(picker->GetChildren()[1]), wxEVT_RADIOBUTTON);
            In<wxFilePickerCtrl>(picker)->SetPath("results/chain.csv");
            return picker;
        },
        wxSize(480, -1));
}

wxTopLevelWindow* StoredModel()
{
    return FrameAround(
        [](wxFrame* frame)
        {
            auto* const picker = new StorePicker(frame);
            Choose(In<wxCheckBox>(picker), wxEVT_CHECKBOX);
            In<wxTextCtrl>(picker)->SetValue("wages_linear");
            return picker;
        });
}

/// Moves `entries` of the first list of a picker with one button to the other one.
template <class Picker>
Picker* WithChosen(Picker* picker, std::vector<int> const& entries)
{
    SelectInFirstList(picker, entries);
    wxCommandEvent event;
    picker->OnMoveButton(event);
    return picker;
}

wxTopLevelWindow* Draws(Shelf& shelf)
{
    return FrameAround(
        [&](wxFrame* frame)
        { return WithChosen(new DrawsPicker(frame, &shelf.models, 235, 18, "Draws to Plot"), {1, 2}); });
}

wxTopLevelWindow* ModelsToCompare(Shelf& shelf)
{
    std::vector<std::string> names;
    for (auto const& entry : shelf.models)
        names.push_back(entry.first);
    return FrameAround([&](wxFrame* frame)
                       { return WithChosen(new ModelPickerPMP(frame, names), {0, 1}); });
}

wxTopLevelWindow* SomeVariables(Shelf& shelf)
{
    return FrameAround(
        [&](wxFrame* frame)
        {
            auto* const picker
                = new VariablePickerSingle(frame, &shelf.datasets, 235, "Variables to Plot");
            return WithChosen(picker, {1, 3});
        });
}
} // namespace

std::vector<Entry> PickerEntries()
{
    return {
        {"pickers", "AdditionalPicker1",
         [](Shelf&) { return Alone<AdditionalPicker1>(wxString("Calculate marginal likelihood")); }},
        {"pickers", "DatasetPicker", [](Shelf& shelf) { return ChoicePicker<DatasetPicker>(shelf.datasets); }},
        {"pickers", "DrawsPicker", Draws},
        {"pickers", "GibbsPicker", [](Shelf&) { return Alone<GibbsPicker>(); }},
        {"pickers", "GibbsPickerStan", [](Shelf&) { return Alone<GibbsPickerStan>(); }},
        {"pickers", "MatrixPicker", [](Shelf& shelf) { return ChoicePicker<MatrixPicker>(shelf.matrices); }},
        {"pickers", "ModelPicker", [](Shelf& shelf) { return ChoicePicker<ModelPicker>(shelf.models); }},
        {"pickers", "ModelPickerPMP", ModelsToCompare},
        {"pickers", "NotePanel", [](Shelf&) { return Note(); }},
        {"pickers", "OutputFilePicker",
         [](Shelf&) { return Alone<OutputFilePicker>(wxString("output file")); }},
        {"pickers", "OutputFilePicker, custom", [](Shelf&) { return CustomOutputFile(); }},
        {"pickers", "ScriptPicker", [](Shelf&) { return Alone<ScriptPicker>(wxString("Model file:"), 272); }},
        {"pickers", "StorePicker", [](Shelf&) { return Alone<StorePicker>(); }},
        {"pickers", "StorePicker, ticked", [](Shelf&) { return StoredModel(); }},
        {"pickers", "TextPicker",
         [](Shelf&) { return Alone<TextPicker>(wxString("alpha, beta[1], sigma"), 400, -1); }},
        {"pickers", "TextPicker, tall",
         [](Shelf&) { return Alone<TextPicker>(wxString("x = 1; y = 2;"), 500, 70); }},
        {"pickers", "VariablePickerSingle", SomeVariables},
    };
}
