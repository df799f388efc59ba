#pragma once

#include "TimePort.h"

#include <functional>
#include <memory>

/// Counts a progress indicator up to 100, one step every 0.2 seconds, and keeps firing without effect after that. It
/// stops when it is destroyed. Main thread.
class ProgressTimer
{
public:
    using Show = std::function<void(int progress)>;

    /// Begins to fire one interval from now.
    /// @param start the first value to show.
    ProgressTimer(TimePort &time, int start, Show show);

    /// One tick out of turn.
    void fire();

private:
    void schedule();

    TimePort &m_time;
    int m_counter;
    Show m_show;
    TimePort::Instant m_due;
    std::unique_ptr<TimePort::Timer> m_tick;
};
