#pragma once

#include "DueActions.h"

#include <condition_variable>
#include <mutex>
#include <thread>

/// The computer's steady clock. Actions run on one thread, started with the first `after`.
class SystemTime final : public TimePort
{
public:
    SystemTime();
    /// Waits for a running action; what is still pending never runs. Not on the port's own thread.
    ~SystemTime() override;

    Instant now() const override;
    void sleep(Duration duration) override;
    [[nodiscard]] std::unique_ptr<Timer> after(Duration delay, std::function<void()> action) override;

private:
    void run();

    DueActions m_actions;
    std::mutex m_mutex;
    std::condition_variable m_wakeUp;
    bool m_actionAdded = false;
    bool m_stopping = false;
    std::thread m_thread;
};
