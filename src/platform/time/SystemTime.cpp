#include "SystemTime.h"

#include "AlternateSignalStack.h"

SystemTime::SystemTime() = default;

SystemTime::~SystemTime()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_wakeUp.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

TimePort::Instant SystemTime::now() const
{
    return std::chrono::steady_clock::now();
}

void SystemTime::sleep(Duration duration)
{
    std::this_thread::sleep_for(duration);
}

std::unique_ptr<TimePort::Timer> SystemTime::after(Duration delay, std::function<void()> action)
{
    auto timer = m_actions.add(now() + delay, std::move(action));
    {
        const std::lock_guard lock(m_mutex);
        m_actionAdded = true;
        if (!m_thread.joinable())
            m_thread = std::thread([this] { run(); });
    }
    m_wakeUp.notify_one();
    return timer;
}

void SystemTime::run()
{
    const AlternateSignalStack signalStack;
    std::unique_lock lock(m_mutex);
    const auto wakeUp = [this] { return m_stopping || m_actionAdded; };
    while (!m_stopping) {
        m_actionAdded = false;
        lock.unlock();
        const bool ran = m_actions.runNext(now());
        const auto next = m_actions.next();
        lock.lock();
        if (ran)
            continue;
        if (next)
            m_wakeUp.wait_until(lock, *next, wakeUp);
        else
            m_wakeUp.wait(lock, wakeUp);
    }
}
