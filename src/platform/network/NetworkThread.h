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
    /// Lets the running job end, drops those that are still queued, and ends the thread.
    ~NetworkThread();

    /// Queues a job. Any thread.
    void post(Job job);

private:
    struct State;
    std::unique_ptr<State> m_state;
};
