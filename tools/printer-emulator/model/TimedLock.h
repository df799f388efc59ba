#pragma once

#include "TimePort.h"

#include <memory>
#include <mutex>
#include <optional>

/// A lock around something that also moves with time: every turn ends with all that is due being done, and with a timer
/// for what falls due next, which takes a turn of its own.
class TimedLock
{
public:
    using Instant = TimePort::Instant;

    /// What moves. Both are called with the lock held.
    class Content
    {
    public:
        /// Does what is due.
        virtual void settle() = 0;
        virtual std::optional<Instant> nextDue() const = 0;

    protected:
        ~Content() = default;
    };

    /// Both outlive the lock.
    TimedLock(TimePort &time, Content &content);
    TimedLock(const TimedLock &) = delete;
    TimedLock &operator=(const TimedLock &) = delete;

    /// The content does not move by itself any more. Not within a turn.
    void stop();

    /// For looking, or waiting, without moving anything.
    std::mutex &mutex() { return m_mutex; }

    class Turn
    {
    public:
        explicit Turn(TimedLock &lock);
        ~Turn();
        Turn(const Turn &) = delete;
        Turn &operator=(const Turn &) = delete;

    private:
        TimedLock &m_owner;
        std::unique_lock<std::mutex> m_lock;
    };

private:
    [[nodiscard]] std::unique_ptr<TimePort::Timer> resetTimer();

    TimePort &m_time;
    Content &m_content;
    std::mutex m_mutex;
    std::unique_ptr<TimePort::Timer> m_timer;
    std::optional<Instant> m_timerDue;
    bool m_stopped = false;
};
