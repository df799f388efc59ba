#include "FirstWindow.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto patience = 10s;
constexpr auto paintPoll = 200us;
constexpr auto settling = 1s;
constexpr int smallestWindow = 300; ///< Toolkits map tiny helper windows as well.

struct FreeLater {
    void operator()(void *reply) const { std::free(reply); }
};
template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, FreeLater>;

/// Starts a program whose greetings do not get between the lines of a table; its complaints are heard.
std::optional<pid_t> start(const std::string &program)
{
    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    posix_spawn_file_actions_addopen(&silence, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::string name = program;
    char *arguments[] = {name.data(), nullptr};
    pid_t process = 0;
    const int result = posix_spawn(&process, program.c_str(), &silence, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&silence);
    return result == 0 ? std::optional(process) : std::nullopt;
}

/// One figure of /proc/PID/smaps_rollup, in MiB.
double memoryOf(pid_t process, const std::string &name)
{
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string line; std::getline(rollup, line);) {
        if (line.starts_with(name + ":"))
            return std::atof(line.c_str() + name.size() + 1) / 1024;
    }
    return 0;
}

} // namespace

FirstWindow::FirstWindow()
    : m_display(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_display)) {
        std::fputs("no X server; use xvfb-run\n", stderr);
        std::exit(2);
    }
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_display)).data;
    const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_display, m_screen->root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(m_display);
}

FirstWindow::~FirstWindow()
{
    xcb_disconnect(m_display);
}

std::optional<StartCost> FirstWindow::measure(const std::string &program)
{
    while (const ReplyPointer<xcb_generic_event_t> old{xcb_poll_for_event(m_display)}) {
    }
    const auto begin = Clock::now();
    const auto process = start(program);
    if (!process)
        return std::nullopt;

    std::optional<StartCost> cost;
    const xcb_window_t window = waitForWindow();
    if (window && waitForPaint(window)) {
        const std::chrono::duration<double, std::milli> taken = Clock::now() - begin;
        std::this_thread::sleep_for(settling);
        cost = {taken.count(), memoryOf(*process, "Rss"), memoryOf(*process, "Pss")};
    }
    kill(*process, SIGKILL);
    waitpid(*process, nullptr, 0);
    return cost;
}

xcb_window_t FirstWindow::waitForWindow()
{
    const auto end = Clock::now() + patience;
    while (Clock::now() < end) {
        const ReplyPointer<xcb_generic_event_t> event{xcb_poll_for_event(m_display)};
        if (!event) {
            pollfd descriptor{xcb_get_file_descriptor(m_display), POLLIN, 0};
            poll(&descriptor, 1, 100);
            continue;
        }
        if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY)
            continue;
        const xcb_window_t window = reinterpret_cast<xcb_map_notify_event_t *>(event.get())->window;
        const ReplyPointer<xcb_get_geometry_reply_t> geometry{
            xcb_get_geometry_reply(m_display, xcb_get_geometry(m_display, window), nullptr)};
        if (geometry && geometry->width > smallestWindow)
            return window;
    }
    return 0;
}

bool FirstWindow::waitForPaint(xcb_window_t window)
{
    // The screen below is black, and every window in question is light.
    const auto end = Clock::now() + patience;
    while (Clock::now() < end) {
        const auto question = xcb_get_image(m_display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 4, 4, 1, 1, ~0U);
        const ReplyPointer<xcb_get_image_reply_t> pixel{xcb_get_image_reply(m_display, question, nullptr)};
        if (pixel && xcb_get_image_data_length(pixel.get()) > 0 && xcb_get_image_data(pixel.get())[0] > 0x80)
            return true;
        std::this_thread::sleep_for(paintPoll);
    }
    return false;
}
