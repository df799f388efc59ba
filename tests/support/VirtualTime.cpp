#include "VirtualTime.h"

#include "ThreadActivity.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <thread>

namespace
{

/// Between two looks, so that whoever has something to do gets the processor.
constexpr std::chrono::microseconds lookInterval{50};

bool processMainEvents()
{
    const bool processed = QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return processed;
}

} // namespace

// Not at the clock's origin, so that an instant before the start exists.
VirtualTime::VirtualTime()
    : m_now(std::chrono::hours(1000))
{
}

VirtualTime::~VirtualTime() = default;

TimePort::Instant VirtualTime::now() const
{
    const std::lock_guard lock(m_mutex);
    return m_now;
}

void VirtualTime::sleep(Duration duration)
{
    std::unique_lock lock(m_mutex);
    const Instant end = m_now + duration;
    if (end <= m_now)
        return;
    const auto sleeper = m_sleepers.insert(end);
    m_moved.wait(lock, [&] { return m_now >= end; });
    m_sleepers.erase(sleeper);
}

std::unique_ptr<TimePort::Timer> VirtualTime::after(Duration delay, std::function<void()> action)
{
    return m_actions.add(now() + delay, std::move(action));
}

std::optional<TimePort::Instant> VirtualTime::nextDeadline() const
{
    std::optional<Instant> deadline = m_actions.next();
    const std::lock_guard lock(m_mutex);
    // A sleeper whose end has come, but who has not left the set yet, is no deadline any more.
    const auto sleeper = m_sleepers.upper_bound(m_now);
    if (sleeper != m_sleepers.end())
        deadline = std::min(deadline.value_or(*sleeper), *sleeper);
    return deadline;
}

void VirtualTime::moveTo(Instant instant)
{
    {
        const std::lock_guard lock(m_mutex);
        m_now = std::max(m_now, instant);
    }
    m_moved.notify_all();
    while (m_actions.runNext(instant)) {
    }
}

void VirtualTime::advance(Duration duration)
{
    const Instant target = now() + duration;
    for (auto deadline = nextDeadline(); deadline && *deadline <= target; deadline = nextDeadline())
        moveTo(*deadline);
    moveTo(target);
}

bool VirtualTime::runUntil(const std::function<bool()> &done, const std::function<bool()> &busy,
                           std::chrono::milliseconds realLimit)
{
    const auto end = std::chrono::steady_clock::now() + realLimit;
    ThreadActivity threads;
    // The order matters: what a thread posted before it fell asleep is processed between the two looks that find it
    // asleep, and then counts as something that happened.
    bool quiet = false;
    while (!done()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        const bool processed = processMainEvents();
        const bool nothingToDo = !processed && !(busy && busy());
        const bool slept = nothingToDo && threads.sleptSinceLastCall();
        if (quiet && slept && !done()) {
            if (const auto deadline = nextDeadline())
                moveTo(*deadline);
            quiet = false;
            continue;
        }
        quiet = nothingToDo;
        if (!processed)
            std::this_thread::sleep_for(lookInterval);
    }
    return true;
}
