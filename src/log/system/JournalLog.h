#pragma once

#include "OSLog.h"

#include <optional>

/// The journal as the system's log. Lines that cannot be delivered are lost: the system's log is never the only one.
class JournalLog : public OSLog
{
public:
    /// The default handle, which names neither a subsystem nor a category.
    JournalLog() = default;
    JournalLog(const QString &subsystem, const QString &category);

    /// The journal's priority for a type: error 3, info 6, debug 7.
    static int priority(OSLogType type);

    void send(OSLogType type, const QString &text) override;

private:
    std::optional<QString> m_subsystem;
    std::optional<QString> m_category;
};
