#pragma once

#include <functional>
#include <memory>

/// The thread that owns every libnm object: NetworkManager may take its time on the bus without holding up a screen.
/// Its GLib main context is the thread's default one.
class NetworkThread
{
public:
    using Job = std::function<void()>;

    NetworkThread();
    /// Ends the thread behind the running job; jobs that are still queued are dropped.
    ~NetworkThread();

    /// Queues a job. Any thread.
    void post(Job job);

private:
    struct State;
    std::unique_ptr<State> m_state;
};
