#pragma once

#include "EarlierReplies.h"

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>

/// Lets one exchange at a time have a device, and remembers what each device may still say about exchanges that were
/// broken off. Devices are told apart by their location. Any thread.
class DeviceTurns
{
public:
    /// The right to use one device, until its destruction.
    class Turn
    {
    public:
        ~Turn();
        Turn(const Turn &) = delete;
        Turn &operator=(const Turn &) = delete;

        /// What the device may still say about earlier exchanges. The next turn gets it as this one leaves it.
        EarlierReplies earlierReplies;

    private:
        friend class DeviceTurns;
        Turn(DeviceTurns &turns, quint32 locationID)
            : m_turns(turns)
            , m_locationID(locationID)
        {
        }

        DeviceTurns &m_turns;
        const quint32 m_locationID;
    };

    /// Waits for the turn. Null when `givenUp` is true first; it is asked at the start, after each end of a turn, and
    /// after each call of `askAgain`, under the lock of this object.
    std::unique_ptr<Turn> wait(quint32 locationID, const std::function<bool()> &givenUp);
    void askAgain();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::set<quint32> m_inUse;
    std::map<quint32, EarlierReplies> m_earlierReplies;
};
