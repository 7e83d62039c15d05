#include "benchmarks/FirstPaint.h"

#include <chrono>
#include <set>
#include <stdexcept>
#include <thread>

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include "benchmarks/Harness.h"
#include "benchmarks/Process.h"

namespace benchmarks
{
namespace
{
/// A connection to the display that survives windows which vanish while it looks at them.
class Display
{
public:
    Display() : m_display(XOpenDisplay(nullptr))
    {
        if (!m_display)
            throw std::runtime_error("there is no display");
        m_list = XInternAtom(m_display, "_NET_CLIENT_LIST", False);
        m_oldHandler = XSetErrorHandler([](::Display*, XErrorEvent*) { return 0; });
    }
    ~Display()
    {
        XSetErrorHandler(m_oldHandler);
        XCloseDisplay(m_display);
    }
    Display(Display const&) = delete;
    Display& operator=(Display const&) = delete;

    /// The windows of programs, as the window manager lists them.
    std::set<Window> Windows() const
    {
        Atom type = None;
        int format = 0;
        unsigned long count = 0;
        unsigned long rest = 0;
        unsigned char* data = nullptr;
        XGetWindowProperty(m_display, DefaultRootWindow(m_display), m_list, 0, 1000, False, XA_WINDOW,
                           &type, &format, &count, &rest, &data);
        auto const* const windows = reinterpret_cast<Window*>(data);
        std::set<Window> found(windows, windows + (data ? count : 0));
        if (data)
            XFree(data);
        return found;
    }

    bool IsPainted(Window window) const
    {
        XWindowAttributes attributes;
        if (!XGetWindowAttributes(m_display, window, &attributes) || attributes.map_state != IsViewable)
            return false;
        for (int i = 1; i <= POINTS; ++i)
            if (HasBlack(window, attributes.width, i * attributes.height / (POINTS + 1)))
                return false;
        return true;
    }

private:
    static constexpr int POINTS = 9;

    /// One of the row's points is black. Whole pictures would keep the display from its work.
    bool HasBlack(Window window, int width, int y) const
    {
        XImage* const row = XGetImage(m_display, window, 0, y, static_cast<unsigned>(width), 1, AllPlanes,
                                      ZPixmap);
        if (!row)
            return true;
        bool found = false;
        for (int i = 1; i <= POINTS; ++i)
            found = found || (XGetPixel(row, i * width / (POINTS + 1), 0) & 0xffffff) == 0;
        XDestroyImage(row);
        return found;
    }

    ::Display* m_display;
    Atom m_list;
    XErrorHandler m_oldHandler;
};
} // namespace

double SecondsToFirstPaint(std::string const& program)
{
    constexpr double LIMIT = 60.0;
    Display const display;
    auto const others = display.Windows();
    auto const isPainted = [&]
    {
        for (Window const window : display.Windows())
            if (others.count(window) == 0 && display.IsPainted(window))
                return true;
        return false;
    };

    pid_t process = 0;
    double const seconds = Seconds(
        [&]
        {
            using Clock = std::chrono::steady_clock;
            auto const end = Clock::now() + std::chrono::duration<double>(LIMIT);
            process = Start(program);
            while (!isPainted() && Clock::now() < end)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        });
    Stop(process);
    if (seconds >= LIMIT)
        throw std::runtime_error("no painted window came from " + program);
    // The next start must not find this window in the list.
    while (display.Windows() != others)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return seconds;
}
} // namespace benchmarks
