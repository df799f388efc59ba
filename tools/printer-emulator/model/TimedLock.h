#pragma once

#include "TimePort.h"

#include <memory>
#include <mutex>
#include <optional>

/// A lock around something that changes by itself as time goes by. At the end of every turn (`Turn`) all that is due is
/// done, and a timer is set for what falls due next; the timer takes a turn of its own.
class TimedLock
{
public:
    using Instant = TimePort::Instant;

    /// What the lock guards. Both operations are called with the lock held.
    class Content
    {
    public:
        /// Does what is due.
        virtual void settle() = 0;
        /// When something falls due after `now`. All that was due by then is done, since `now` was before `settle`: a
        /// clock that was read again behind it would pass over what fell due in between.
        virtual std::optional<Instant> nextDue(Instant now) const = 0;

    protected:
        ~Content() = default;
    };

    /// Both outlive the lock.
    TimedLock(TimePort &time, Content &content);
    TimedLock(const TimedLock &) = delete;
    TimedLock &operator=(const TimedLock &) = delete;

    /// Ends the timer: the content changes in turns of others only. Must not be called within a turn.
    void stop();

    /// To read the content, or to wait for it to change, without a turn.
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
    [[nodiscard]] std::unique_ptr<TimePort::Timer> resetTimer(Instant now);

    TimePort &m_time;
    Content &m_content;
    std::mutex m_mutex;
    std::unique_ptr<TimePort::Timer> m_timer;
    std::optional<Instant> m_timerDue;
    bool m_stopped = false;
};
