#include "WTLog.h"

#include "GlobalQueue.h"
#include "ReportDelivery.h"
#include "WTExceptionHandler.h"

#include <QCoreApplication>
#include <QThread>
#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace
{

DispatchGroup &loggingGroup()
{
    static auto *const group = new DispatchGroup;
    return *group;
}

bool hasOneProcessor()
{
    static const bool one = QThread::idealThreadCount() < 2;
    return one;
}

/// Returns before the logger is done, unless there is only one processor.
void deliver(const WTLogMessage &message, const WTLoggerNode &to)
{
    const auto job = [&logger = *to.logger, &message] { logger.logMessage(message); };
    if (hasOneProcessor())
        to.loggerQueue->syncInPlace(job);
    else
        to.loggerQueue->async(loggingGroup(), job);
}

/// A text that lives as long as the process.
QByteArray literal(const char *text)
{
    return QByteArray::fromRawData(text, static_cast<qsizetype>(qstrlen(text)));
}

} // namespace

WTLog::WTLog()
    : m_loggers(std::make_shared<const Registrations>())
{
    if (auto *application = QCoreApplication::instance())
        QObject::connect(application, &QCoreApplication::aboutToQuit, &WTLog::applicationWillTerminate);
    else
        std::atexit(&WTLog::applicationWillTerminate);
}

WTLog &WTLog::sharedInstance()
{
    static WTLog *const instance = [] {
        auto *made = new WTLog;
        WTExceptionHandler::uncaughtExceptionHandler();
        return made;
    }();
    return *instance;
}

SerialQueue &WTLog::loggingQueue()
{
    static auto *const queue = new SerialQueue(u"cocoa.quillmark"_s);
    return *queue;
}

void WTLog::addLogger(const LoggerPtr &logger)
{
    addLogger(logger, WTLogLevelAll);
}

void WTLog::addLogger(const LoggerPtr &logger, quint64 withLevel)
{
    if (logger)
        loggingQueue().async([&log = sharedInstance(), logger, withLevel] { log.lt_addLogger(logger, withLevel); });
}

void WTLog::removeLogger(const LoggerPtr &logger)
{
    if (logger)
        loggingQueue().async([&log = sharedInstance(), logger] { log.lt_removeLogger(logger); });
}

void WTLog::removeAllLoggers()
{
    loggingQueue().async([&log = sharedInstance()] { log.lt_removeAllLoggers(); });
}

QList<WTLog::LoggerPtr> WTLog::allLoggers()
{
    QList<LoggerPtr> loggers;
    for (const WTLoggerNode &node : *sharedInstance().registrationsOnceQueueIsReached())
        loggers.append(node.logger);
    return loggers;
}

QList<WTLoggerInformation> WTLog::allLoggersWithLevel()
{
    QList<WTLoggerInformation> loggers;
    for (const WTLoggerNode &node : *sharedInstance().registrationsOnceQueueIsReached())
        loggers.append(WTLoggerInformation::informationWithLogger(node.logger, node.level));
    return loggers;
}

void WTLog::log(bool asynchronous, quint64 level, quint64 flag, qint64 context, const char *file, const char *function,
                quint64 line, const QVariant &tag, const char *format, std::initializer_list<FormatArgument> args)
{
    if (!format)
        return;
    queueLogMessage(WTLogMessage::initWithFormat(QString::fromUtf8(format), args, level, flag, context,
                                                 {file, function, line}, tag, 0, std::nullopt),
                    asynchronous);
}

void WTLog::log(bool asynchronous, WTLogMessage message)
{
    queueLogMessage(std::move(message), asynchronous);
}

void WTLog::write(bool asynchronous, quint64 flag, const std::source_location &where, const char *utf8Format,
                  std::initializer_list<FormatArgument> arguments)
{
    const WTLogMessage::Place place{literal(where.file_name()), literal(where.function_name()), where.line()};
    queueLogMessage(WTLogMessage::initWithFormat(QString::fromUtf8(utf8Format), arguments, WTLogLevelAll, flag, 0,
                                                 place, {}, 0, std::nullopt),
                    asynchronous);
}

void WTLog::queueLogMessage(WTLogMessage message, bool asynchronously)
{
    WTLog &log = sharedInstance();
    if (asynchronously)
        loggingQueue().async([&log, waiting = std::make_shared<const WTLogMessage>(std::move(message))]() mutable {
            log.lt_log(*waiting);
            GlobalQueue::async([spent = std::move(waiting)] {});
        });
    else if (loggingQueue().isCurrent())
        log.lt_log(message);
    else
        loggingQueue().sync([&] { log.lt_log(message); });
}

void WTLog::flushLog()
{
    loggingQueue().sync([&log = sharedInstance()] { log.lt_flush(); });
}

void WTLog::applicationWillTerminate()
{
    flushLog();
}

bool WTLog::isRegisteredClass(const WTLogClass &candidate)
{
    return candidate.logLevel && candidate.wtcSetLogLevel;
}

QList<WTLogClass> WTLog::registeredClasses()
{
    QList<WTLogClass> classes = WTLogClass::allPublished();
    classes.removeIf([](const WTLogClass &published) { return !isRegisteredClass(published); });
    return classes;
}

QStringList WTLog::registeredClassNames()
{
    QStringList names;
    for (const WTLogClass &registered : registeredClasses())
        names.append(registered.name);
    return names;
}

quint64 WTLog::levelForClass(const WTLogClass &candidate)
{
    return isRegisteredClass(candidate) ? candidate.logLevel() : WTLogLevelAll;
}

quint64 WTLog::levelForClassWithName(const QString &name)
{
    return levelForClass(WTLogClass::withName(name).value_or(WTLogClass{}));
}

void WTLog::setLevel(quint64 level, const WTLogClass &forClass)
{
    if (isRegisteredClass(forClass))
        forClass.wtcSetLogLevel(level);
}

void WTLog::setLevel(quint64 level, const QString &forClassWithName)
{
    setLevel(level, WTLogClass::withName(forClassWithName).value_or(WTLogClass{}));
}

void WTLog::deliverReport(const WTLogMessage &report, qint64 crashedThread)
{
    ReportDelivery::deliver(*sharedInstance().registrations(), report, crashedThread);
}

void WTLog::lt_addLogger(const LoggerPtr &logger, quint64 level)
{
    Registrations changed = *registrations();
    const auto isSame = [&](const WTLoggerNode &node) { return node.logger == logger && node.level == level; };
    if (std::ranges::any_of(changed, isSame))
        return;
    auto queue = logger->loggerQueue();
    if (!queue)
        queue = std::make_shared<SerialQueue>(logger->loggerName());
    changed.push_back(WTLoggerNode::nodeWithLogger(logger, queue, level));
    lt_exchange(std::move(changed));
    queue->async([logger, queue = queue.get()] { logger->didAddLoggerInQueue(*queue); });
}

void WTLog::lt_removeLogger(const LoggerPtr &logger)
{
    Registrations changed = *registrations();
    const auto found = std::ranges::find(changed, logger, &WTLoggerNode::logger);
    if (found == changed.end())
        return;
    found->loggerQueue->async([logger] { logger->willRemoveLogger(); });
    changed.erase(found);
    lt_exchange(std::move(changed));
}

void WTLog::lt_removeAllLoggers()
{
    for (const WTLoggerNode &node : *registrations())
        node.loggerQueue->async([logger = node.logger] { logger->willRemoveLogger(); });
    lt_exchange({});
}

void WTLog::lt_exchange(Registrations changed)
{
    // The old list goes after the lock is released: a logger may end with it.
    auto next = std::make_shared<const Registrations>(std::move(changed));
    m_loggers.change([&](auto &loggers) { loggers.swap(next); });
}

void WTLog::lt_log(const WTLogMessage &message)
{
    const auto loggers = registrations();
    const WTLoggerNode *last = nullptr;
    for (const WTLoggerNode &node : *loggers) {
        if (!node.admits(message))
            continue;
        if (last)
            deliver(message, *last);
        last = &node;
    }
    // This thread would only wait for the last one, so it does that logger's work itself.
    if (last)
        last->loggerQueue->syncInPlace([&] { last->logger->logMessage(message); });
    loggingGroup().wait();
}

void WTLog::lt_flush()
{
    const auto loggers = registrations();
    for (const WTLoggerNode &node : *loggers)
        node.loggerQueue->async(loggingGroup(), [&logger = *node.logger] { logger.flush(); });
    loggingGroup().wait();
}

std::shared_ptr<const WTLog::Registrations> WTLog::registrations() const
{
    return m_loggers.read([](const auto &loggers) { return loggers; });
}

std::shared_ptr<const WTLog::Registrations> WTLog::registrationsOnceQueueIsReached() const
{
    std::shared_ptr<const Registrations> loggers;
    loggingQueue().sync([&] { loggers = registrations(); });
    return loggers;
}
