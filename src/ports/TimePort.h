#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// The program's only clock and its only way to wait, so that a test may run three minutes of time-outs in no time.
/// All operations may be called on any thread.
class TimePort
{
public:
    using Instant = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::milliseconds;

    /// A pending action. Destroyed before the action is due, it revokes the action; destroyed on another thread while
    /// the action runs, it waits for the action's end, so that what the action uses may be destroyed next.
    class Timer
    {
    public:
        virtual ~Timer() = default;
    };

    virtual ~TimePort() = default;

    virtual Instant now() const = 0;

    /// Blocks the calling thread.
    virtual void sleep(Duration duration) = 0;

    /// Runs `action` once, `delay` from now, on the port's own thread. The action must be short: it delays every other
    /// timer. Screens use `onMainThreadAfter`, which only posts.
    [[nodiscard]] virtual std::unique_ptr<Timer> after(Duration delay, std::function<void()> action) = 0;
};
