#pragma once

#include "PrinterScript.h"
#include "TimePort.h"

#include <map>
#include <optional>

/// Bus events that wait for their time, the earliest first. Not thread-safe: the bus guards it.
class Agenda
{
public:
    using Instant = TimePort::Instant;

    struct Entry {
        int printer = 0;
        BusEvent::Action action = BusEvent::Action::Unplug;
    };

    void add(Instant due, const Entry &entry) { m_entries.emplace(due, entry); }

    std::optional<Instant> next() const
    {
        return m_entries.empty() ? std::nullopt : std::optional(m_entries.begin()->first);
    }

    /// Takes out the first entry that is due.
    std::optional<Entry> takeDue(Instant now)
    {
        if (m_entries.empty() || m_entries.begin()->first > now)
            return std::nullopt;
        return m_entries.extract(m_entries.begin()).mapped();
    }

private:
    std::multimap<Instant, Entry> m_entries;
};
