#include "ProgressTimer.h"

#include "OnMainThreadAfter.h"

#include <algorithm>

namespace
{

constexpr TimePort::Duration interval{200};
constexpr int end = 101;

} // namespace

ProgressTimer::ProgressTimer(TimePort &time, int start, Show show)
    : m_time(time)
    , m_counter(start)
    , m_show(std::move(show))
    , m_due(time.now())
{
    schedule();
}

void ProgressTimer::fire()
{
    if (m_counter < end)
        m_show(m_counter++);
}

void ProgressTimer::schedule()
{
    // Counted from the last due time, so that late ticks do not add up.
    m_due += interval;
    const auto delay = std::chrono::ceil<TimePort::Duration>(m_due - m_time.now());
    m_tick = onMainThreadAfter(m_time, std::max(delay, TimePort::Duration::zero()), [this] {
        fire();
        schedule();
    });
}
