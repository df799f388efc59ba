#include "TimedLock.h"

#include <algorithm>
#include <utility>

TimedLock::TimedLock(TimePort &time, Content &content)
    : m_time(time)
    , m_content(content)
{
}

void TimedLock::stop()
{
    std::unique_ptr<TimePort::Timer> timer;
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        timer = std::move(m_timer);
    }
}

std::unique_ptr<TimePort::Timer> TimedLock::resetTimer(Instant now)
{
    const std::optional<Instant> due = m_stopped ? std::nullopt : m_content.nextDue(now);
    if (due == m_timerDue)
        return nullptr;
    m_timerDue = due;
    std::unique_ptr<TimePort::Timer> old = std::move(m_timer);
    if (due) {
        const auto delay = std::chrono::ceil<TimePort::Duration>(*due - now);
        m_timer = m_time.after(std::max(delay, TimePort::Duration{0}), [this] {
            const Turn turn(*this);
            m_timerDue.reset();
        });
    }
    return old;
}

TimedLock::Turn::Turn(TimedLock &lock)
    : m_owner(lock)
    , m_lock(lock.m_mutex)
{
}

TimedLock::Turn::~Turn()
{
    const Instant now = m_owner.m_time.now();
    m_owner.m_content.settle();
    const std::unique_ptr<TimePort::Timer> old = m_owner.resetTimer(now);
    // Destroying a timer may wait for the timer's action, which needs the lock.
    m_lock.unlock();
}
