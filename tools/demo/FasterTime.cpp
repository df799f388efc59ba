#include "FasterTime.h"

FasterTime::FasterTime(int speed)
    : m_speed(speed)
    , m_start(m_time.now())
{
}

TimePort::Instant FasterTime::now() const
{
    return m_start + (m_time.now() - m_start) * m_speed;
}

void FasterTime::sleep(Duration duration)
{
    m_time.sleep(duration / m_speed);
}

std::unique_ptr<TimePort::Timer> FasterTime::after(Duration delay, std::function<void()> action)
{
    return m_time.after(delay / m_speed, std::move(action));
}
