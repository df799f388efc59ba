#pragma once

#include "DescriptorSource.h"

/// Runs an action once on a queue, at a moment of the wall clock: setting the clock forward past that moment makes the
/// action due.
class RollingTimer
{
public:
    /// False when the system has no more timers to give.
    bool isRunning() const { return m_source.isWaiting(); }

    /// `interval` is in seconds from now; at most 9223372036 count.
    RollingTimer(double interval, std::shared_ptr<SerialQueue> queue, DescriptorSource::Action onDue);

private:
    DescriptorSource m_source;
};
