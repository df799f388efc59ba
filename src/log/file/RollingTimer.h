#pragma once

#include "DescriptorSource.h"

/// Runs an action once on a queue, at a moment of the wall clock: setting the clock forward past that moment makes the
/// action due. `interval` is in seconds from now; at most 9223372036 count. Does not wait when the system has no more
/// timers to give.
std::unique_ptr<DescriptorSource> startRollingTimer(double interval, std::shared_ptr<SerialQueue> queue,
                                                    DescriptorSource::Action onDue);
