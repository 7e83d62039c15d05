#pragma once

#include <functional>
#include <memory>
#include <string>

#include <wx/timer.h>

#include "workbench/plot/Gnuplot.h"

namespace workbench
{
/// Draws one figure at a time while the event loop runs.
class FigureDrawing : private wxTimer
{
public:
    /// `onDrawn` is handed the bytes of a picture, `onFailed` the words why there is none.
    FigureDrawing(std::function<void(std::string const& picture)> onDrawn,
                  std::function<void(std::string const& reason)> onFailed);

    /// Begins to draw; a drawing that isn't done is given up.
    void Begin(Figure const& figure, Picture const& picture);

    void GiveUp();

    bool IsDrawing() const { return m_gnuplot != nullptr; }

private:
    void Notify() override;

    std::function<void(std::string const&)> m_onDrawn;
    std::function<void(std::string const&)> m_onFailed;
    std::unique_ptr<Gnuplot> m_gnuplot;
};
} // namespace workbench
