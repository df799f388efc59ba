#include "WTLogFileManagerDefault.h"

#include "ArchivedMark.h"
#include "GlobalQueue.h"
#include "InfoList.h"
#include "LogConsole.h"
#include "LogFileNameDate.h"
#include "LogFolder.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// "x.log", then "x 2.log", "x 3.log" and so on.
QString nameOfAttempt(const QString &name, std::size_t attempt)
{
    if (attempt < 2)
        return name;
    const QFileInfo info(name);
    const QString numbered = formatText("%@ %lu", info.completeBaseName(), attempt);
    return info.suffix().isEmpty() ? numbered : numbered + u'.' + info.suffix();
}

} // namespace

WTLogFileManagerDefault::WTLogFileManagerDefault(const QString &logsDirectory, WallClock clock)
    : m_clock(std::move(clock))
    , m_logsDirectory(logsDirectory.isEmpty() ? defaultLogsDirectory() : logsDirectory)
    , m_logMessageSerializer(std::make_shared<WTFileLogPlainTextMessageSerializer>())
{
}

QString WTLogFileManagerDefault::defaultLogsDirectory()
{
    return LogFolder::defaultPath();
}

QString WTLogFileManagerDefault::logsDirectory() const
{
    if (const FileError error = LogFolder::create(m_logsDirectory))
        LogConsole::report("WTFileLogManagerDefault: Error creating logsDirectory: %@", error.description());
    return m_logsDirectory;
}

QString WTLogFileManagerDefault::applicationName()
{
    static const auto *const name = new QString([] {
        const QString identifier = InfoList::value(u"CFBundleIdentifier"_s).value_or(QString());
        return identifier.isEmpty() ? LogFolder::processName() : identifier;
    }());
    return *name;
}

bool WTLogFileManagerDefault::isLogFile(const QString &fileName) const
{
    return fileName.startsWith(applicationName() + u' ') && fileName.endsWith(u".log"_s);
}

QString WTLogFileManagerDefault::newLogFileName() const
{
    return formatText("%@ %@.log", applicationName(), LogFileNameDate::text(m_clock()));
}

std::optional<QByteArray> WTLogFileManagerDefault::logFileHeaderData() const
{
    QString header = logFileHeader().value_or(QString());
    if (header.isEmpty())
        return std::nullopt;
    if (!header.endsWith(u'\n'))
        header += u'\n';
    return logMessageSerializer()->dataForString(header, nullptr);
}

QStringList WTLogFileManagerDefault::unsortedLogFilePaths() const
{
    QStringList paths;
    for (const QString &name : unsortedLogFileNames())
        paths.append(m_logsDirectory + u'/' + name);
    return paths;
}

QStringList WTLogFileManagerDefault::unsortedLogFileNames() const
{
    QStringList names = LogFolder::entries(m_logsDirectory);
    names.removeIf([this](const QString &name) { return !isLogFile(name); });
    return names;
}

QList<WTLogFileInfo> WTLogFileManagerDefault::unsortedLogFileInfos() const
{
    QList<WTLogFileInfo> infos;
    for (const QString &path : unsortedLogFilePaths())
        infos.append(logFileInfo(path));
    return infos;
}

QStringList WTLogFileManagerDefault::sortedLogFilePaths() const
{
    QStringList paths;
    for (const WTLogFileInfo &info : sortedLogFileInfos())
        paths.append(info.filePath());
    return paths;
}

QStringList WTLogFileManagerDefault::sortedLogFileNames() const
{
    QStringList names;
    for (const WTLogFileInfo &info : sortedLogFileInfos())
        names.append(info.fileName());
    return names;
}

QList<WTLogFileInfo> WTLogFileManagerDefault::sortedLogFileInfos() const
{
    struct Dated {
        QDateTime date;
        WTLogFileInfo info;
    };
    QList<Dated> dated;
    for (const WTLogFileInfo &info : unsortedLogFileInfos())
        dated.append({dateOf(info), info});
    std::ranges::stable_sort(dated, std::ranges::greater(), &Dated::date);
    QList<WTLogFileInfo> sorted;
    for (const Dated &one : dated)
        sorted.append(one.info);
    return sorted;
}

/// The date in the name, else the file's own; now for a file that has none.
QDateTime WTLogFileManagerDefault::dateOf(const WTLogFileInfo &info) const
{
    const QString last = info.fileName().section(u' ', -1).remove(u".log"_s);
    if (QDateTime named = LogFileNameDate::parse(last); named.isValid())
        return named;
    return info.creationDate().isValid() ? info.creationDate() : m_clock();
}

WTLogFileManaging::NewLogFile WTLogFileManagerDefault::createNewLogFileWithError()
{
    constexpr std::size_t mostErrors = 5;
    const QString name = newLogFileName();
    const QString directory = logsDirectory();
    const QByteArray contents = logFileHeaderData().value_or(QByteArray());
    std::size_t errors = 0;
    for (std::size_t attempt = 1;;) {
        const QString path = directory + u'/' + nameOfAttempt(name, attempt);
        const FileError error = LogFolder::createFile(path, contents);
        if (!error) {
            ArchivedMark::forget(path);
            const std::lock_guard lock(m_mutex);
            m_lastCreatedPath = path;
            deleteOldLogFilesInBackground();
            return {path, std::nullopt};
        }
        if (error.fileExists()) {
            ++attempt;
            continue;
        }
        LogConsole::report("WTLogFileManagerDefault: Critical error while creating log file: %@", error.description());
        if (++errors == mostErrors) {
            LogConsole::report("WTLogFileManagerDefault: Bailing file creation, encountered %ld errors.", errors);
            return {std::nullopt, error};
        }
    }
}

void WTLogFileManagerDefault::deleteOldLogFiles()
{
    const QList<WTLogFileInfo> newestFirst = sortedLogFileInfos();
    for (qsizetype index = firstIndexToDelete(newestFirst); index < newestFirst.size(); ++index) {
        const WTLogFileInfo &info = newestFirst[index];
        if (isBeingWritten(info))
            continue;
        if (unlink(QFile::encodeName(info.filePath())) == 0)
            continue;
        // Another process may have been faster.
        const FileError error = FileError::ofLastCall(info.filePath());
        if (!error.fileIsMissing())
            LogConsole::report("WTLogFileManagerDefault: Error deleting file %@", error.description());
    }
}

qsizetype WTLogFileManagerDefault::firstIndexToDelete(const QList<WTLogFileInfo> &newestFirst) const
{
    const quint64 quota = m_logFilesDiskQuota;
    const auto most = static_cast<qsizetype>(m_maximumNumberOfLogFiles.load());
    qsizetype first = newestFirst.size();
    if (quota > 0) {
        quint64 used = 0;
        const auto overQuota = std::ranges::find_if(
            newestFirst, [&](const WTLogFileInfo &info) { return (used += info.fileSize()) > quota; });
        first = overQuota - newestFirst.begin();
    }
    if (most > 0)
        first = std::min(first, most);
    const bool newestIsInUse = first == 0 && !newestFirst.isEmpty() && !newestFirst.first().isArchived();
    return newestIsInUse ? 1 : first;
}

/// The file created last is usually the newest, too; but not after the clock was set back.
bool WTLogFileManagerDefault::isBeingWritten(const WTLogFileInfo &info) const
{
    const std::lock_guard lock(m_mutex);
    return info.filePath() == m_lastCreatedPath && !info.isArchived();
}

void WTLogFileManagerDefault::deleteOldLogFilesInBackground()
{
    GlobalQueue::async([weakly = weak_from_this()] {
        if (const auto manager = weakly.lock())
            manager->deleteOldLogFiles();
    });
}

void WTLogFileManagerDefault::deleteOldFilesForConfigurationChange()
{
    deleteOldLogFilesInBackground();
}

void WTLogFileManagerDefault::setMaximumNumberOfLogFiles(std::size_t maximumNumberOfLogFiles)
{
    if (m_maximumNumberOfLogFiles.exchange(maximumNumberOfLogFiles) != maximumNumberOfLogFiles)
        deleteOldFilesForConfigurationChange();
}

void WTLogFileManagerDefault::setLogFilesDiskQuota(quint64 logFilesDiskQuota)
{
    if (m_logFilesDiskQuota.exchange(logFilesDiskQuota) != logFilesDiskQuota)
        deleteOldFilesForConfigurationChange();
}

std::shared_ptr<const WTFileLogMessageSerializer> WTLogFileManagerDefault::logMessageSerializer() const
{
    const std::lock_guard lock(m_mutex);
    return m_logMessageSerializer;
}

void WTLogFileManagerDefault::setLogMessageSerializer(std::shared_ptr<const WTFileLogMessageSerializer> serializer)
{
    const std::lock_guard lock(m_mutex);
    m_logMessageSerializer = std::move(serializer);
}
