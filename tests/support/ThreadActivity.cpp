#include "ThreadActivity.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

struct ThreadStatus {
    char state = 'R';
    unsigned long long switches = 0;
};

/// What follows the key in one of the lines "State:\tS (sleeping)" and "voluntary_ctxt_switches:\t3".
std::string_view valueOf(std::string_view status, std::string_view key)
{
    const std::size_t found = status.find(key);
    return found == std::string_view::npos ? std::string_view() : status.substr(found + key.size());
}

unsigned long long numberOf(std::string_view status, std::string_view key)
{
    const std::string_view value = valueOf(status, key);
    unsigned long long number = 0;
    std::from_chars(value.data(), value.data() + value.size(), number);
    return number;
}

using Buffer = std::array<char, 4096>;

/// One of the files that the kernel shows of a thread; empty when it has gone.
std::string_view readFile(pid_t thread, const char *name, Buffer &buffer)
{
    const std::string path = "/proc/self/task/" + std::to_string(thread) + '/' + name;
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t size = file < 0 ? -1 : read(file, buffer.data(), buffer.size());
    close(file);
    return {buffer.data(), std::size_t(std::max<ssize_t>(size, 0))};
}

/// A pause that ends by itself. The emulated usbfs makes one after every request, of no length, but on a busy host its
/// timer may come milliseconds late. (libc makes this call of every pause; the sanitizers' own thread uses another
/// one.)
bool pauses(pid_t thread)
{
    Buffer buffer;
    const std::string_view call = readFile(thread, "syscall", buffer);
    long number = -1;
    std::from_chars(call.data(), call.data() + call.size(), number);
    return number == SYS_clock_nanosleep;
}

std::optional<ThreadStatus> statusOf(pid_t thread)
{
    Buffer buffer;
    const std::string_view status = readFile(thread, "status", buffer);
    const std::string_view state = valueOf(status, "\nState:\t");
    const unsigned long long switches =
        numberOf(status, "\nvoluntary_ctxt_switches:\t") + numberOf(status, "\nnonvoluntary_ctxt_switches:\t");
    if (state.empty() || switches == 0)
        return std::nullopt;
    return ThreadStatus{state.front(), switches};
}

} // namespace

std::optional<ThreadActivity::Switches> ThreadActivity::sampleIfAllAsleep()
{
    Switches switches;
    for (const auto &task : std::filesystem::directory_iterator("/proc/self/task")) {
        pid_t thread = 0;
        const std::string name = task.path().filename();
        std::from_chars(name.data(), name.data() + name.size(), thread);
        if (thread == gettid())
            continue;
        const auto status = statusOf(thread);
        if (!status || status->state != 'S' || pauses(thread))
            return std::nullopt;
        switches[thread] = status->switches;
    }
    return switches;
}

bool ThreadActivity::sleptSinceLastCall()
{
    auto sample = sampleIfAllAsleep();
    const bool slept = sample && sample == m_last;
    m_last = std::move(sample);
    return slept;
}
