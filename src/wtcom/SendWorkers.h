#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>
#include <set>

class AclExchange;

/// The threads of the running sends, one each. When the process ends normally, they are broken off and waited for,
/// before anything that their callbacks may touch is destroyed. Never destroyed itself. Any thread.
class SendWorkers
{
public:
    static SendWorkers &shared();

    /// Runs the exchange on a thread of its own; if none can be had, refuses it on the calling thread.
    void start(const std::shared_ptr<AclExchange> &exchange);

    /// No send is running: nothing uses the ports any more.
    bool isIdle();

private:
    SendWorkers();
    void endAll();
    void remove(const std::shared_ptr<AclExchange> &exchange);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::set<std::shared_ptr<AclExchange>> m_running;
};
