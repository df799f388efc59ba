#pragma once

#include <map>
#include <optional>
#include <sys/types.h>

/// Whether the other threads of this process are at work, judged by the kernel's own books: a thread that may run, but
/// has no processor yet, or that sleeps for a moment of its own choice, counts as busy, so that the answer holds on a
/// loaded machine.
class ThreadActivity
{
public:
    /// True if there was an instant between the last call and this one at which every other thread waited for another
    /// one: all sleep at both samples, and none was switched in between.
    bool sleptSinceLastCall();

private:
    using Switches = std::map<pid_t, unsigned long long>;
    static std::optional<Switches> sampleIfAllAsleep();

    std::optional<Switches> m_last;
};
