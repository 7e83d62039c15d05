#pragma once

#include <memory>
#include <string>
#include <vector>

#include <wx/filename.h>
#include <wx/frame.h>

#include "workbench/app/FigureDrawing.h"

class wxListBox;
class wxStaticText;

namespace workbench
{
class FigureView;
struct Figure;

/// The window with the figures of this session: their list, the chosen one, and what can be done with
/// it. Closing it only hides it; the figures stay.
class FigureWindow : public wxFrame
{
public:
    explicit FigureWindow(wxWindow* parent);

    /// Takes a figure in, which is also handed drawn as a PNG picture, and comes to the front with it.
    void Add(std::shared_ptr<Figure const> const& figure, std::string const& picture);

    /// Comes to the front.
    void BringUp();

    /// Writes the chosen figure to a file as large as so many pixels, in the format that the ending of
    /// `path` names; without an ending it is PNG. An existing file is replaced after a question only. The
    /// window tells how it went.
    void ExportTo(wxFileName path, wxSize const& pixels);

    bool IsEmpty() const { return m_entries.empty(); }

private:
    struct Entry
    {
        std::shared_ptr<Figure const> figure;
        std::string picture;
    };

    void MakeButtons(wxSizer* sizer);
    void ShowChosen();
    void OnCharHook(wxKeyEvent& event);
    void CopyPicture();
    void Export();
    void Tell(std::string const& message);

    std::vector<Entry> m_entries;
    wxListBox* m_list;
    FigureView* m_view;
    wxStaticText* m_message;
    std::string m_exportPath; ///< Where the picture goes that is being drawn for a file.
    FigureDrawing m_export;
};
} // namespace workbench
