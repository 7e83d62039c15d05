#include "workbench/app/FigureView.h"

#include <wx/dcbuffer.h>
#include <wx/graphics.h>
#include <wx/image.h>
#include <wx/mstream.h>

#include "workbench/plot/Figure.h"

namespace workbench
{
namespace
{
constexpr int REST_MS = 150;
constexpr int SMALLEST = 60;
} // namespace

FigureView::FigureView(wxWindow* parent, std::function<void(std::string const&)> onMessage)
    : wxPanel(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxFULL_REPAINT_ON_RESIZE),
      m_onMessage(std::move(onMessage)),
      m_drawing(
          [this](std::string const& picture)
          {
              Take(picture);
              m_onMessage({});
          },
          [this](std::string const& reason) { m_onMessage(reason); })
{
    SetBackgroundStyle(wxBG_STYLE_PAINT);
    SetMinSize(wxSize(240, 180));
    if (!wxImage::FindHandler(wxBITMAP_TYPE_PNG))
        wxImage::AddHandler(new wxPNGHandler);
    Bind(wxEVT_PAINT, &FigureView::OnPaint, this);
    Bind(wxEVT_SIZE,
         [this](wxSizeEvent& event)
         {
             event.Skip();
             if (m_figure)
                 m_rest.StartOnce(REST_MS);
         });
    m_rest.Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Draw(); });
}

void FigureView::Show(std::shared_ptr<Figure const> const& figure, std::string const& picture)
{
    m_figure = figure;
    Take(picture);
    Draw();
}

void FigureView::Take(std::string const& picture)
{
    wxMemoryInputStream stream(picture.data(), picture.size());
    wxImage const image(stream, wxBITMAP_TYPE_PNG);
    if (image.IsOk())
        m_picture = wxBitmap(image);
    Refresh();
}

void FigureView::Draw()
{
    wxSize const size = GetClientSize();
    // A window that isn't shown yet has hardly a size; it draws when it gets one.
    if (size.x >= SMALLEST && size.y >= SMALLEST)
        m_drawing.Begin(*m_figure, {PictureFormat::Png, size.x, size.y, 1.0});
}

void FigureView::OnPaint(wxPaintEvent&)
{
    wxAutoBufferedPaintDC dc(this);
    dc.SetBackground(*wxWHITE_BRUSH);
    dc.Clear();
    if (!m_picture.IsOk())
        return;
    wxSize const size = GetClientSize();
    if (m_picture.GetSize() == size)
    {
        dc.DrawBitmap(m_picture, 0, 0);
        return;
    }
    std::unique_ptr<wxGraphicsContext> const graphics(wxGraphicsContext::Create(dc));
    graphics->DrawBitmap(m_picture, 0, 0, size.x, size.y);
}
} // namespace workbench
