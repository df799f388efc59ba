#pragma once

#include "TextFormat.h"
#include "WTLogFlag.h"

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <array>
#include <chrono>
#include <optional>

/// One line of the log, immutable once made. Made on the thread that logs, whose facts it keeps; read on any thread.
class WTLogMessage
{
public:
    using Date = std::chrono::system_clock::time_point;

    /// Where a message comes from. The texts are UTF-8; a view of the compiler's own (`QByteArray::fromRawData`) costs
    /// the caller no memory.
    struct Place {
        QByteArray file;
        QByteArray function;
        quint64 line = 0;
        bool operator==(const Place &) const = default;
    };

    /// The thread that logs.
    struct Caller {
        /// 0 when it cannot be read.
        qint64 systemThread = 0;
        /// As it was when the thread first logged; UTF-8 up to the first zero byte.
        std::array<char, 16> threadName{};
        /// The label of the serial queue the thread runs, "main" on the main thread.
        QString queueLabel;

        static Caller current();
        bool operator==(const Caller &) const = default;
    };

    [[nodiscard]] static WTLogMessage initWithFormat(const QString &format, const QString &formatted, quint64 level,
                                                     quint64 flag, qint64 context, const Place &place,
                                                     const QVariant &tag, quint64 options,
                                                     std::optional<Date> timestamp);
    /// Fills `format` with `args`; adds the option that keeps the texts uncopied.
    [[nodiscard]] static WTLogMessage initWithFormat(const QString &format, std::initializer_list<FormatArgument> args,
                                                     quint64 level, quint64 flag, qint64 context, const Place &place,
                                                     const QVariant &tag, quint64 options,
                                                     std::optional<Date> timestamp);
    /// `message` is both the format and the text.
    [[nodiscard]] static WTLogMessage initWithMessage(const QString &message, quint64 level, quint64 flag,
                                                      qint64 context, const Place &place, const QVariant &tag,
                                                      quint64 options, std::optional<Date> timestamp);
    /// The same message with `caller` in place of the thread that made it.
    [[nodiscard]] WTLogMessage spokenBy(const Caller &caller) const;

    const QString &message() const { return m_message; }
    const QString &messageFormat() const { return m_messageFormat; }
    quint64 level() const { return m_level; }
    /// One bit of `WTLogFlag`, though any other value is kept as well.
    quint64 flag() const { return m_flag; }
    qint64 context() const { return m_context; }
    QString file() const { return QString::fromUtf8(m_place.file); }
    /// The last path component of `file`, without its last extension.
    QString fileName() const;
    QString function() const { return QString::fromUtf8(m_place.function); }
    quint64 line() const { return m_place.line; }
    const QVariant &tag() const { return m_tag; }
    const QVariant &representedObject() const { return m_tag; }
    quint64 options() const { return m_options; }
    Date timestamp() const { return m_timestamp; }
    /// The system's thread id as a decimal number, "N/A" when it cannot be read.
    QString threadID() const;
    QString threadName() const { return QString::fromUtf8(m_caller.threadName.data()); }
    const QString &queueLabel() const { return m_caller.queueLabel; }
    /// The caller's quality-of-service class: always 0, since the system knows none.
    quint32 qos() const { return 0; }

    /// Compares everything but the format.
    bool isEqual(const WTLogMessage &other) const;
    size_t hash() const;

private:
    WTLogMessage() = default;

    QString m_message;
    QString m_messageFormat;
    quint64 m_level = 0;
    quint64 m_flag = 0;
    qint64 m_context = 0;
    Place m_place;
    QVariant m_tag;
    quint64 m_options = 0;
    Date m_timestamp;
    Caller m_caller;
};
