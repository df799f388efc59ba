#pragma once

#include <optional>
#include <string>
#include <xcb/xcb.h>

/// What a program has cost by the time it shows a window.
struct StartCost {
    double milliseconds; ///< From the start of the process to the first painted pixel.
    double residentMiB;  ///< Resident memory, a moment after that (Rss).
    double shareMiB;     ///< The same, with pages that several processes share counted in parts (Pss).
};

/// Watches the screen of an X server for the windows of programs that it starts one by one. No window manager may stand
/// between.
class FirstWindow
{
public:
    FirstWindow();
    ~FirstWindow();
    FirstWindow(const FirstWindow &) = delete;
    FirstWindow &operator=(const FirstWindow &) = delete;

    /// Starts the program, waits for its window and ends it. Nothing when it shows none within ten seconds.
    std::optional<StartCost> measure(const std::string &program);

private:
    /// The next window of at least half of the screen's width that is mapped; 0 when time is over.
    xcb_window_t waitForWindow();
    bool waitForPaint(xcb_window_t window);

    xcb_connection_t *m_display;
    xcb_screen_t *m_screen;
};
