#include "workbench/app/FigureDrawing.h"

#include "workbench/engine/Error.h"

namespace workbench
{
namespace
{
constexpr int LOOK_EVERY_MS = 20;
} // namespace

FigureDrawing::FigureDrawing(std::function<void(std::string const&)> onDrawn,
                             std::function<void(std::string const&)> onFailed)
    : m_onDrawn(std::move(onDrawn)), m_onFailed(std::move(onFailed))
{
}

void FigureDrawing::Begin(Figure const& figure, Picture const& picture)
{
    GiveUp();
    try
    {
        m_gnuplot = std::make_unique<Gnuplot>(figure, picture);
        Start(LOOK_EVERY_MS);
    }
    catch (Error const& error)
    {
        m_onFailed(error.what());
    }
}

void FigureDrawing::GiveUp()
{
    Stop();
    m_gnuplot.reset();
}

void FigureDrawing::Notify()
{
    std::string picture;
    try
    {
        if (!m_gnuplot->Wait(0))
            return;
        picture = m_gnuplot->Result();
    }
    catch (Error const& error)
    {
        GiveUp();
        m_onFailed(error.what());
        return;
    }
    // What hears of the picture may begin the next one.
    GiveUp();
    m_onDrawn(picture);
}
} // namespace workbench
