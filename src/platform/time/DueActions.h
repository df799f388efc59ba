#pragma once

#include "TimePort.h"

#include <optional>

/// The pending actions of a time port, in the order in which they fall due; those of one instant in the order in which
/// they were added. What `TimePort::Timer` says of destroying a timer holds. All operations may be called on any
/// thread; actions run on the thread that calls `runNext`, one at a time and under no lock.
class DueActions
{
public:
    using Instant = TimePort::Instant;

    DueActions();
    ~DueActions();

    /// The timer may outlive this object.
    [[nodiscard]] std::unique_ptr<TimePort::Timer> add(Instant due, std::function<void()> action);

    /// When the first pending action falls due.
    std::optional<Instant> next() const;

    /// Runs the first action that is due at `now`. Only one thread at a time may call this.
    /// @return whether there was one.
    bool runNext(Instant now);

private:
    struct State;
    class PendingTimer;
    std::shared_ptr<State> m_state;
};
