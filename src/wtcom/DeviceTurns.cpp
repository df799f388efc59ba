#include "DeviceTurns.h"

DeviceTurns::Turn::~Turn()
{
    {
        const std::lock_guard lock(m_turns.m_mutex);
        m_turns.m_inUse.erase(m_locationID);
        if (inputIsStale)
            m_turns.m_stale.insert(m_locationID);
        else
            m_turns.m_stale.erase(m_locationID);
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
    turn->inputIsStale = m_stale.contains(locationID);
    return turn;
}

void DeviceTurns::askAgain()
{
    // Whoever has asked and is about to wait is waiting once the lock is free.
    {
        const std::lock_guard lock(m_mutex);
    }
    m_changed.notify_all();
}
