#pragma once

#include <functional>
#include <string>
#include <vector>

#include <wx/gdicmn.h>

struct Shelf;
class wxFrame;
class wxTopLevelWindow;
class wxWindow;

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
std::vector<Entry> DataDialogEntries();
std::vector<Entry> PaneEntries();

/// A frame for a widget that is a part of a window. `make` makes the widget with the frame as
/// parent. The frame gets the size `size`, or the widget's own best size where that says -1.
wxFrame* FrameAround(std::function<wxWindow*(wxFrame*)> const& make, wxSize size = wxDefaultSize);
