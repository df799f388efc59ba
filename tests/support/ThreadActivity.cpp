#include "ThreadActivity.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>
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

std::optional<ThreadStatus> statusOf(pid_t thread)
{
    std::array<char, 4096> buffer;
    const std::string path = "/proc/self/task/" + std::to_string(thread) + "/status";
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const ssize_t size = file < 0 ? -1 : read(file, buffer.data(), buffer.size());
    close(file);
    const std::string_view status(buffer.data(), std::size_t(std::max<ssize_t>(size, 0)));
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
        if (!status || status->state != 'S')
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
