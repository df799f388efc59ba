#include "ThreadActivity.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace
{

struct ThreadStatus {
    char state = 'R';
    unsigned long long switches = 0;
};

// The lines "State:\tS (sleeping)", "voluntary_ctxt_switches:\t3" and "nonvoluntary_ctxt_switches:\t2".
std::optional<ThreadStatus> statusOf(const std::filesystem::path &task)
{
    std::ifstream file(task / "status");
    ThreadStatus status;
    std::string key;
    while (file >> key) {
        unsigned long long number = 0;
        if (key == "State:")
            file >> status.state;
        else if (key.ends_with("voluntary_ctxt_switches:") && file >> number)
            status.switches += number;
        file.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    if (status.switches == 0)
        return std::nullopt;
    return status;
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
        const auto status = statusOf(task.path());
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
