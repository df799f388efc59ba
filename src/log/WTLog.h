#pragma once

#include "Locked.h"
#include "SerialQueue.h"
#include "TextFormat.h"
#include "WTLogClass.h"
#include "WTLogFlag.h"
#include "WTLogMessage.h"
#include "WTLogger.h"
#include "WTLoggerInformation.h"
#include "WTLoggerNode.h"

#include <QList>
#include <QStringList>
#include <initializer_list>
#include <memory>
#include <source_location>
#include <vector>

/// The one log of the process. A message is made on the caller's thread, waits on the logging queue and is then written
/// by every logger that admits its flag, each on a queue of its own, side by side; the next message waits until all of
/// them have finished, so every logger sees the messages in the order they were queued. The number of waiting messages
/// has no bound.
///
/// Every operation works on the shared instance, whether called on the class or on the instance, on any thread. Whoever
/// waits takes the logging queue first and a logger's queue second, never the other way round.
class WTLog
{
public:
    using LoggerPtr = std::shared_ptr<WTLogger>;

    /// Made on first use and never destroyed; from then on crashes are reported and the end of the process flushes.
    static WTLog &sharedInstance();
    static SerialQueue &loggingQueue();

    /// Adds the logger for every flag.
    static void addLogger(const LoggerPtr &logger);
    /// Returns before the logger is added. The same logger and level are added once, another level adds the logger
    /// again.
    static void addLogger(const LoggerPtr &logger, quint64 withLevel);
    /// Returns before the first registration of the logger is removed.
    static void removeLogger(const LoggerPtr &logger);
    static void removeAllLoggers();
    /// Waits for the logging queue. In the order of registration.
    static QList<LoggerPtr> allLoggers();
    static QList<WTLoggerInformation> allLoggersWithLevel();

    /// Logs the text of `format`, whose placeholders are those of `formatText`; nothing without a format. When it is
    /// not asynchronous, every logger has written the message on return. `file` and `function` are UTF-8.
    static void log(bool asynchronous, quint64 level, quint64 flag, qint64 context, const char *file,
                    const char *function, quint64 line, const QVariant &tag, const char *format,
                    std::initializer_list<FormatArgument> args);
    template <typename... Arguments>
    static void log(bool asynchronous, quint64 level, quint64 flag, qint64 context, const char *file,
                    const char *function, quint64 line, const QVariant &tag, const char *format,
                    const Arguments &...arguments)
    {
        log(asynchronous, level, flag, context, file, function, line, tag, format, {FormatArgument(arguments)...});
    }
    static void log(bool asynchronous, WTLogMessage message);
    /// Every level, context 0, no tag.
    static void write(bool asynchronous, quint64 flag, const std::source_location &where, const char *utf8Format,
                      std::initializer_list<FormatArgument> arguments);
    /// On the logging queue itself a synchronous message is delivered in place.
    static void queueLogMessage(WTLogMessage message, bool asynchronously);

    /// Returns when every logger has flushed. Must not be called on the logging queue.
    static void flushLog();
    static void applicationWillTerminate();

    /// Whether the class has both `logLevel` and `wtcSetLogLevel`.
    static bool isRegisteredClass(const WTLogClass &candidate);
    static QList<WTLogClass> registeredClasses();
    static QStringList registeredClassNames();
    /// Every bit for a class that is not registered.
    static quint64 levelForClass(const WTLogClass &candidate);
    static quint64 levelForClassWithName(const QString &name);
    /// Does nothing for a class that is not registered.
    static void setLevel(quint64 level, const WTLogClass &forClass);
    static void setLevel(quint64 level, const QString &forClassWithName);

    /// Hands the report of a crash to every logger, past whatever stands still because of the crash. Returns when they
    /// have written it. For the reporting thread.
    static void deliverReport(const WTLogMessage &report, qint64 crashedThread);

    WTLog(const WTLog &) = delete;
    WTLog &operator=(const WTLog &) = delete;

private:
    using Registrations = std::vector<WTLoggerNode>;

    WTLog();

    // On the logging queue
    void lt_addLogger(const LoggerPtr &logger, quint64 level);
    void lt_removeLogger(const LoggerPtr &logger);
    void lt_removeAllLoggers();
    void lt_exchange(Registrations changed);
    void lt_log(const WTLogMessage &message);
    void lt_flush();

    std::shared_ptr<const Registrations> registrations() const;
    std::shared_ptr<const Registrations> registrationsOnceQueueIsReached() const;

    /// Changed on the logging queue only, by exchanging the list; locked for those who read it elsewhere.
    Locked<std::shared_ptr<const Registrations>> m_loggers;
};
