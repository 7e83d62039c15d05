#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/gdicmn.h>
#include <wx/window.h>

struct Shelf;
class wxFrame;
class wxTopLevelWindow;

/// One widget of the gallery.
struct Entry
{
    /// Makes the widget in a window of its own, which is not shown yet, with content from `shelf`.
    using Build = std::function<wxTopLevelWindow*(Shelf& shelf)>;

    std::string folder; ///< Where the widget's class lies.
    std::string name;   ///< The widget's class, or the class and what is special in this entry.
    Build build;
};

/// Everything that the gallery shows, in the order of the folders. To show a new widget, add it to
/// the entries of its folder.
std::vector<Entry> AllEntries();

std::vector<Entry> ConsoleEntries();
std::vector<Entry> PickerEntries();
std::vector<Entry> ModelSpecEntries();
std::vector<Entry> VariablePickerEntries();
std::vector<Entry> EquationEntries();
std::vector<Entry> DataDialogEntries();
std::vector<Entry> AnalysisDialogEntries();
std::vector<Entry> PostEstimationEntries();
std::vector<Entry> ExternalDialogEntries();
std::vector<Entry> ApplicationDialogEntries();
std::vector<Entry> PaneEntries();

/// A frame for a widget that is a part of a window. `make` makes the widget with the frame as
/// parent. The frame gets the size `size`, or the widget's own best size where that says -1.
wxFrame* FrameAround(std::function<wxWindow*(wxFrame*)> const& make, wxSize size = wxDefaultSize);

/// The first control of one class in a picker.
template <class Control>
Control* In(wxWindow const* picker)
{
    for (auto* const child : picker->GetChildren())
        if (auto* const control = dynamic_cast<Control*>(child))
            return control;
    return nullptr;
}

/// All controls of one class in a dialog, however deep, a child's children behind the child.
template <class Control>
std::vector<Control*> AllIn(wxWindow const* window)
{
    std::vector<Control*> found;
    for (auto* const child : window->GetChildren())
    {
        if (auto* const control = dynamic_cast<Control*>(child))
            found.push_back(control);
        auto const below = AllIn<Control>(child);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

/// Chooses as the user does, so that the picker hears of it.
template <class Control>
void Choose(Control* control, wxEventType type)
{
    control->SetValue(true);
    wxCommandEvent event(type, control->GetId());
    control->ProcessWindowEvent(event);
}

/// Selects `entries` in the first list of `picker`, from which its buttons move.
void SelectInFirstList(wxWindow const* picker, std::vector<int> const& entries);
