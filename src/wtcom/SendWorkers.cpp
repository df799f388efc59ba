#include "SendWorkers.h"

#include "AclExchange.h"
#include "AlternateSignalStack.h"

#include <chrono>
#include <cstdlib>
#include <system_error>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// How long the end of the process waits for sends that have been broken off: one of their callbacks may block.
constexpr std::chrono::seconds longestFarewell{2};

} // namespace

SendWorkers &SendWorkers::shared()
{
    static SendWorkers *const workers = new SendWorkers;
    return *workers;
}

SendWorkers::SendWorkers()
{
    std::atexit([] { shared().endAll(); });
}

void SendWorkers::start(const std::shared_ptr<AclExchange> &exchange)
{
    {
        const std::lock_guard lock(m_mutex);
        m_running.insert(exchange);
    }
    try {
        std::thread([this, exchange] {
            const AlternateSignalStack signalStack;
            exchange->run();
            remove(exchange);
        }).detach();
    } catch (const std::system_error &error) {
        exchange->refuse(u"no thread for the transfer: %1"_s.arg(QString::fromLocal8Bit(error.what())));
        remove(exchange);
    }
}

void SendWorkers::remove(const std::shared_ptr<AclExchange> &exchange)
{
    const std::lock_guard lock(m_mutex);
    m_running.erase(exchange);
    m_changed.notify_all();
}

bool SendWorkers::isIdle()
{
    const std::lock_guard lock(m_mutex);
    return m_running.empty();
}

void SendWorkers::endAll()
{
    std::unique_lock lock(m_mutex);
    for (const auto &exchange : m_running)
        exchange->cancel();
    m_changed.wait_for(lock, longestFarewell, [this] { return m_running.empty(); });
}
