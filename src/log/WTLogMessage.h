#pragma once

#include "TextFormat.h"
#include "WTLogFlag.h"

#include <QExplicitlySharedDataPointer>
#include <QString>
#include <QVariant>
#include <array>
#include <chrono>
#include <optional>

/// One line of the log, immutable once made; copies share it. Made on the thread that logs, whose facts it keeps; read
/// on any thread.
class WTLogMessage
{
public:
    using Date = std::chrono::system_clock::time_point;

    /// Where a message comes from.
    struct Place {
        QString file;
        QString function;
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
    /// The same message, said by another thread than the one that made it.
    [[nodiscard]] WTLogMessage spokenBy(const Caller &caller) const;

    const QString &message() const;
    const QString &messageFormat() const;
    quint64 level() const;
    /// One bit of `WTLogFlag`, though any other value is kept as well.
    quint64 flag() const;
    qint64 context() const;
    const QString &file() const;
    /// The last path component of `file`, without its last extension.
    QString fileName() const;
    const QString &function() const;
    quint64 line() const;
    const QVariant &tag() const;
    const QVariant &representedObject() const;
    quint64 options() const;
    Date timestamp() const;
    /// The system's thread id as a decimal number, "N/A" when it cannot be read.
    QString threadID() const;
    QString threadName() const;
    const QString &queueLabel() const;
    /// The caller's quality-of-service class: 0 where the system knows none.
    quint32 qos() const;

    bool isEqual(const WTLogMessage &other) const;
    size_t hash() const;

    WTLogMessage(const WTLogMessage &other);
    WTLogMessage(WTLogMessage &&other) noexcept;
    WTLogMessage &operator=(const WTLogMessage &other);
    WTLogMessage &operator=(WTLogMessage &&other) noexcept;
    ~WTLogMessage();

private:
    struct Fields;
    class UnusedFields;
    using SharedFields = QExplicitlySharedDataPointer<Fields>;

    explicit WTLogMessage(SharedFields fields);
    static SharedFields fieldsWith(const QString &format, quint64 level, quint64 flag, qint64 context,
                                   const Place &place, const QVariant &tag, quint64 options,
                                   std::optional<Date> timestamp);

    SharedFields m_fields;
};
