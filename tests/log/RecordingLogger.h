#pragma once

#include "Locked.h"
#include "WTLogMessage.h"
#include "WTLogger.h"

#include <QStringList>
#include <functional>

/// Remembers what it was told, in order: "text", "flush", "added", "removed". Has no queue of its own, so the log makes
/// one; `onMessage` runs inside `logMessage`.
class RecordingLogger : public WTLogger
{
public:
    explicit RecordingLogger(std::function<void(const WTLogMessage &)> onMessage = {})
        : m_onMessage(std::move(onMessage))
    {
    }

    void logMessage(const WTLogMessage &message) override
    {
        note(message.message());
        if (m_onMessage)
            m_onMessage(message);
    }
    void flush() override { note(QStringLiteral("flush")); }
    QString loggerName() const override { return QStringLiteral("recorder"); }
    void didAddLogger() override { note(QStringLiteral("added")); }
    void willRemoveLogger() override { note(QStringLiteral("removed")); }

    QStringList events() const
    {
        return m_events.read([](const QStringList &events) { return events; });
    }

private:
    void note(const QString &event)
    {
        m_events.change([&](QStringList &events) { events.append(event); });
    }

    Locked<QStringList> m_events;
    std::function<void(const WTLogMessage &)> m_onMessage;
};
