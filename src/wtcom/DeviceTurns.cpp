#include "DeviceTurns.h"

DeviceTurns::Turn::~Turn()
{
    {
        const std::lock_guard lock(m_turns.m_mutex);
        m_turns.m_inUse.erase(m_locationID);
        if (earlierReplies.isEmpty())
            m_turns.m_earlierReplies.erase(m_locationID);
        else
            m_turns.m_earlierReplies[m_locationID] = earlierReplies;
    }
    m_turns.m_changed.notify_all();
}

std::unique_ptr<DeviceTurns::Turn> DeviceTurns::wait(quint32 locationID, const std::function<bool()> &givenUp)
{
    std::unique_lock lock(m_mutex);
    bool gaveUp = false;
    m_changed.wait(lock, [&] {
        gaveUp = givenUp();
        return gaveUp || !m_inUse.contains(locationID);
    });
    if (gaveUp)
        return nullptr;
    m_inUse.insert(locationID);
    std::unique_ptr<Turn> turn(new Turn(*this, locationID));
    if (const auto known = m_earlierReplies.find(locationID); known != m_earlierReplies.end())
        turn->earlierReplies = known->second;
    return turn;
}

void DeviceTurns::askAgain()
{
    // Without the lock, the notification could fall between a waiter's last question and the beginning of its wait,
    // and be missed.
    {
        const std::lock_guard lock(m_mutex);
    }
    m_changed.notify_all();
}
