#include "DueActions.h"

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>
#include <utility>

using Key = std::pair<TimePort::Instant, unsigned long long>;

struct DueActions::State {
    std::mutex mutex;
    std::condition_variable ended;
    std::map<Key, std::function<void()>> pending;
    unsigned long long added = 0;
    std::optional<Key> running;
    std::thread::id runner;
};

class DueActions::PendingTimer final : public TimePort::Timer
{
public:
    PendingTimer(std::shared_ptr<State> state, Key key)
        : m_state(std::move(state))
        , m_key(key)
    {
    }

    ~PendingTimer() override
    {
        std::unique_lock lock(m_state->mutex);
        // The action is destroyed after the lock is gone: what it captured may call back into this object.
        const auto revoked = m_state->pending.extract(m_key);
        if (m_state->runner != std::this_thread::get_id())
            m_state->ended.wait(lock, [this] { return m_state->running != m_key; });
        lock.unlock();
    }

private:
    const std::shared_ptr<State> m_state;
    const Key m_key;
};

DueActions::DueActions()
    : m_state(std::make_shared<State>())
{
}

DueActions::~DueActions() = default;

std::unique_ptr<TimePort::Timer> DueActions::add(Instant due, std::function<void()> action)
{
    const std::lock_guard lock(m_state->mutex);
    const Key key{due, m_state->added++};
    m_state->pending.emplace(key, std::move(action));
    return std::make_unique<PendingTimer>(m_state, key);
}

std::optional<DueActions::Instant> DueActions::next() const
{
    const std::lock_guard lock(m_state->mutex);
    if (m_state->pending.empty())
        return std::nullopt;
    return m_state->pending.begin()->first.first;
}

bool DueActions::runNext(Instant now)
{
    std::unique_lock lock(m_state->mutex);
    const auto first = m_state->pending.begin();
    if (first == m_state->pending.end() || first->first.first > now)
        return false;
    m_state->running = first->first;
    m_state->runner = std::this_thread::get_id();
    std::function<void()> action = std::move(first->second);
    m_state->pending.erase(first);
    lock.unlock();

    action();
    // Whoever waits in a timer's destructor may destroy next what the action captured by reference.
    action = nullptr;

    lock.lock();
    m_state->running.reset();
    m_state->runner = {};
    lock.unlock();
    m_state->ended.notify_all();
    return true;
}
