#include "WTFileLogger.h"

#include "GlobalQueue.h"
#include "LogConsole.h"
#include "LogFileLock.h"
#include "WTLogFileFormatterDefault.h"
#include "WTLogFileManagerDefault.h"

#include <QScopedValueRollback>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr QLatin1StringView fileLoggerName("com.wtlog.fileLogger");

/// Counts for the whole process, so that a logger that fails at every line does not fill the console.
void reportException(const QString &what)
{
    constexpr int mostReports = 10;
    static std::atomic<int> exceptions = 0;
    const int count = ++exceptions;
    if (count <= mostReports)
        LogConsole::report("WTFileLogger.logMessage: %@", what);
    if (count == mostReports)
        LogConsole::report("WTFileLogger.logMessage: Too many exceptions -- will not log any more of them.");
}

/// Appends `data` to what the file holds by now. With `endsTornLine`, a torn line that a killed writer left at the end
/// gets its line end first. An error means that no write was tried.
FileError append(LogFileHandle &file, const QByteArray &data, bool endsTornLine)
{
    if (FileError error = file.seekToEnd()) {
        LogConsole::report("WTFileLogger: Failed to seek to end of file: %@", error.description());
        return error;
    }
    const bool isTorn = endsTornLine && file.endsInTornLine();
    if (const FileError error = file.write(isTorn ? '\n' + data : data))
        LogConsole::report("WTFileLogger: Failed to write data: %@", error.description());
    return {};
}

/// The same under the file's lock, so that no other process writes in between. Tries again for as long as the lock is
/// refused for a reason that passes.
FileError appendLocked(LogFileHandle &file, const QByteArray &data, bool endsTornLine)
{
    for (;;) {
        FileError error;
        if (const LogFileLock lock(file.descriptor()); lock.error())
            error = lock.error();
        else
            error = append(file, data, endsTornLine);
        if (!error.isPassing())
            return error;
        LogConsole::report("WTFileLogger: Could not lock logfile, retrying in 1ms: %s (%d)", error.reason(),
                           error.number);
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

} // namespace

WTFileLogger::WTFileLogger()
    : WTFileLogger(std::make_shared<WTLogFileManagerDefault>())
{
}

WTFileLogger::WTFileLogger(std::shared_ptr<WTLogFileManaging> logFileManager,
                           std::shared_ptr<SerialQueue> completionQueue)
    : m_logFileManager(std::move(logFileManager))
    , m_completionQueue(std::move(completionQueue))
{
    m_logFormatter = std::make_shared<WTLogFileFormatterDefault>();
}

WTFileLogger::~WTFileLogger()
{
    // No job of this logger is on the queue any more, since each job holds the logger.
    lt_closeLogFile();
}

QString WTFileLogger::loggerName() const
{
    return fileLoggerName;
}

quint64 WTFileLogger::maximumFileSize() const
{
    quint64 size = 0;
    readOnQueues([&] { size = m_maximumFileSize; });
    return size;
}

void WTFileLogger::setMaximumFileSize(quint64 maximumFileSize)
{
    changeOnQueues([this, maximumFileSize] {
        m_maximumFileSize = maximumFileSize;
        lt_maybeRollLogFileDueToSize();
    });
}

double WTFileLogger::rollingFrequency() const
{
    double frequency = 0;
    readOnQueues([&] { frequency = m_rollingFrequency; });
    return frequency;
}

void WTFileLogger::setRollingFrequency(double rollingFrequency)
{
    changeOnQueues([this, rollingFrequency] {
        m_rollingFrequency = rollingFrequency;
        if (m_currentLogFileHandle.isOpen())
            lt_maybeRollLogFileDueToAge();
    });
}

std::optional<WTLogFileInfo> WTFileLogger::currentLogFileInfo()
{
    std::optional<WTLogFileInfo> info;
    readOnQueues([&] { info = lt_currentLogFileInfo(); });
    return info;
}

void WTFileLogger::logMessage(const WTLogMessage &message)
{
    if (const QByteArray data = lt_dataForMessage(message); !data.isEmpty())
        lt_logData(data);
}

void WTFileLogger::logData(const QByteArray &data)
{
    if (isOnInternalLoggerQueue())
        lt_logData(data);
    else
        readOnQueues([&] { lt_logData(data); });
}

void WTFileLogger::flush()
{
    if (!isOnInternalLoggerQueue()) {
        readOnQueues([this] { flush(); });
        return;
    }
    if (!m_currentLogFileHandle.isOpen())
        return;
    if (const FileError error = m_currentLogFileHandle.synchronize())
        LogConsole::report("WTFileLogger: Failed to synchronize file: %@", error.description());
}

void WTFileLogger::willRemoveLogger()
{
    lt_rollLogFileNow();
}

void WTFileLogger::willLogMessage(const WTLogFileInfo & /*logFileInfo*/) {}

void WTFileLogger::didLogMessage(const WTLogFileInfo & /*logFileInfo*/)
{
    lt_maybeRollLogFileDueToSize();
}

void WTFileLogger::willLogMessage()
{
    if (isOnInternalLoggerQueue() && m_isWriting && m_currentLogFileInfo)
        willLogMessage(*m_currentLogFileInfo);
}

void WTFileLogger::didLogMessage()
{
    if (isOnInternalLoggerQueue() && m_isWriting && m_currentLogFileInfo)
        didLogMessage(*m_currentLogFileInfo);
}

bool WTFileLogger::shouldArchiveRecentLogFileInfo(const WTLogFileInfo & /*recentLogFileInfo*/)
{
    return false;
}

QByteArray WTFileLogger::lt_dataForMessage(const WTLogMessage &message) const
{
    QString text = textForMessage(message).value_or(QString());
    if (text.isEmpty())
        return {};
    const bool isCustom = text.constData() != message.message().constData();
    if (!text.endsWith(u'\n') && (!isCustom || m_appendNewline))
        text += u'\n';
    return m_logFileManager->logMessageSerializer()->dataForString(text, &message);
}

void WTFileLogger::lt_logData(const QByteArray &data)
{
    if (data.isEmpty())
        return;
    try {
        lt_lookAfterLogFile();
        if (!lt_currentLogFileHandle())
            return;
        const QScopedValueRollback writing(m_isWriting, true);
        willLogMessage();
        lt_appendData(data);
        didLogMessage();
    } catch (const std::exception &exception) {
        reportException(QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        reportException(u"unknown exception"_s);
    }
}

void WTFileLogger::lt_appendData(const QByteArray &data)
{
    LogFileHandle *file = lt_currentLogFileHandle();
    if (file && !m_worksWithoutLock) {
        if (!appendLocked(*file, data, m_appendNewline))
            return;
        // The descriptor may have gone bad: a fresh one is tried before the lock is given up.
        lt_closeLogFile();
        file = lt_currentLogFileHandle();
        const FileError error = file ? appendLocked(*file, data, m_appendNewline) : FileError{};
        if (!error)
            return;
        m_worksWithoutLock = true;
        LogConsole::report("WTFileLogger: Writing without a lock from now on: %@", error.description());
    }
    if (file)
        static_cast<void>(append(*file, data, m_appendNewline));
}
