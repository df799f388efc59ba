#pragma once

#include "SystemTime.h"

#include <QCoreApplication>
#include <QThread>
#include <atomic>

/// The computer's clock, except that nobody sleeps: pauses that the protocol orders are counted instead of waited for.
class HurriedTime : public TimePort
{
public:
    Instant now() const override { return m_time.now(); }
    void sleep(Duration duration) override
    {
        const bool onMainThread = QThread::currentThread() == QCoreApplication::instance()->thread();
        (onMainThread ? m_skippedOnMainThread : m_skipped) += duration.count();
    }
    std::unique_ptr<Timer> after(Duration delay, std::function<void()> action) override
    {
        return m_time.after(delay, std::move(action));
    }

    /// On other threads than the main thread.
    Duration skipped() const { return Duration(m_skipped); }
    Duration skippedOnMainThread() const { return Duration(m_skippedOnMainThread); }

private:
    SystemTime m_time;
    std::atomic<Duration::rep> m_skipped = 0;
    std::atomic<Duration::rep> m_skippedOnMainThread = 0;
};
