#pragma once

#include <functional>
#include <memory>
#include <string>

#include <wx/bitmap.h>
#include <wx/panel.h>
#include <wx/timer.h>

#include "workbench/app/FigureDrawing.h"

namespace workbench
{
struct Figure;

/// Shows one figure as large as the view is. When the size changes the picture is stretched at once,
/// and drawn anew for the size when that stands still.
class FigureView : public wxPanel
{
public:
    /// `onMessage` is handed what the user should know about the drawing: why it failed, or nothing.
    FigureView(wxWindow* parent, std::function<void(std::string const&)> onMessage);

    /// Shows `figure`; until it is drawn for this size, `picture`, the bytes of a PNG picture of it.
    void Show(std::shared_ptr<Figure const> const& figure, std::string const& picture);
    using wxPanel::Show;

    /// The figure as it is shown, stretched or not; an invalid bitmap if there is none.
    wxBitmap const& GetPicture() const { return m_picture; }

    /// Whether the picture is still to be drawn for the present size.
    bool IsStale() const { return m_rest.IsRunning() || m_drawing.IsDrawing(); }

private:
    void Take(std::string const& picture);
    void Draw();
    void OnPaint(wxPaintEvent& event);

    std::shared_ptr<Figure const> m_figure;
    wxBitmap m_picture;
    std::function<void(std::string const&)> m_onMessage;
    FigureDrawing m_drawing;
    wxTimer m_rest; ///< Runs until the size has stood still.
};
} // namespace workbench
