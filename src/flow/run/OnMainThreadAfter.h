#pragma once

#include "TimePort.h"

#include <functional>
#include <memory>

/// Runs `action` once on the main thread, `delay` from now. Call it on the main thread, and destroy the timer there:
/// from then on the action never runs, even if it was due already. So the action may use what lives as long as the
/// timer.
[[nodiscard]] std::unique_ptr<TimePort::Timer> onMainThreadAfter(TimePort &time, TimePort::Duration delay,
                                                                 std::function<void()> action);
