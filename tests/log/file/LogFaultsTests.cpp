#include "LogBed.h"
#include "LogSocket.h"
#include "PrivateMount.h"
#include "Rows.h"
#include "SyslogClient.h"
#include "WTASLLogger.h"
#include "WTFileLogger.h"
#include "WTLog.h"
#include "WTLogFileManagerDefault.h"
#include "WTOSLogger.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// A logger without a formatter in the bed's folder, registered while this lives.
class BedLogger
{
public:
    explicit BedLogger(const LogBed &bed)
        : m_logger(std::make_shared<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder())))
    {
        m_logger->setLogFormatter(nullptr);
        WTLog::addLogger(m_logger);
    }
    ~BedLogger()
    {
        WTLog::removeAllLoggers();
        WTLog::flushLog();
    }
    BedLogger(const BedLogger &) = delete;
    BedLogger &operator=(const BedLogger &) = delete;

    WTFileLogger *operator->() const { return m_logger.get(); }

    void log(const QString &text) const
    {
        WTLog::log(false, WTLogLevelAll, WTLogFlagInfo, 0, "", "", 0, {}, "%@", text);
    }

private:
    std::shared_ptr<WTFileLogger> m_logger;
};

/// The descriptor under which this process has the file open; -1: none.
int descriptorOf(const QString &path)
{
    for (const QString &name : QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System)) {
        if (QFile::symLinkTarget(u"/proc/self/fd/"_s + name) == path)
            return name.toInt();
    }
    return -1;
}

void limitFileSize(rlim_t bytes)
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// What a flooding writer has written: "thread number" of each line. Fails on a line that is not whole.
bool readFlood(const LogBed &bed, QStringList &written)
{
    static const QRegularExpression pattern(u"\\A\\[\\S+ \\S+ TID: *\\d+\\] 🟢 line (\\d+ (\\d+)) (x*)\\z"_s);
    for (const QString &line : bed.lines()) {
        const QRegularExpressionMatch match = pattern.match(line);
        if (!match.hasMatch() || match.capturedLength(3) != match.captured(2).toInt() % 2000) {
            qInfo().noquote() << "torn:" << line;
            return false;
        }
        written.append(match.captured(1));
    }
    return true;
}

void startWriter(QProcess &writer, const QStringList &arguments)
{
    writer.start(QCoreApplication::applicationDirPath() + u"/log_writer"_s, arguments);
}

QStringList linesOf(const QByteArray &output)
{
    return QString::fromLatin1(output).split(u'\n', Qt::SkipEmptyParts);
}

std::atomic<int> lockRefusal = 0, locksAsked = 0, exclusiveLocks = 0, synchronizations = 0;
std::atomic<bool> hasNoWatches = false, hasNoTimers = false;

int refuse(int error)
{
    errno = error;
    return -1;
}

} // namespace

// In place of the C library's: the same calls of the system, which here are refused on command.

extern "C" int flock(int descriptor, int operation) noexcept
{
    ++locksAsked;
    exclusiveLocks += operation == LOCK_EX;
    return lockRefusal ? refuse(lockRefusal) : static_cast<int>(syscall(SYS_flock, descriptor, operation));
}

extern "C" int fsync(int descriptor)
{
    ++synchronizations;
    return static_cast<int>(syscall(SYS_fsync, descriptor));
}

extern "C" int inotify_init1(int flags) noexcept
{
    return hasNoWatches ? refuse(EMFILE) : static_cast<int>(syscall(SYS_inotify_init1, flags));
}

extern "C" int timerfd_create(clockid_t clock, int flags) noexcept
{
    return hasNoTimers ? refuse(EMFILE) : static_cast<int>(syscall(SYS_timerfd_create, clock, flags));
}

/// Everything that may befall the folder, the file and the process, tried on real ones.
class LogFaultsTests : public QObject
{
    Q_OBJECT

public:
    explicit LogFaultsTests(bool canMount)
        : m_canMount(canMount)
    {
    }

private Q_SLOTS:
    void initTestCase() { std::signal(SIGXFSZ, SIG_IGN); }

    void cleanup()
    {
        lockRefusal = 0;
        hasNoWatches = hasNoTimers = false;
    }

    void fileGoesAway()
    {
        eachRow(
            {
                {"deleted", QByteArray("deleted")},
                {"folder removed", QByteArray("folder removed")},
                {"a symbolic link in its place", QByteArray("link")},
                {"descriptor closed", QByteArray("descriptor closed")},
            },
            [&](const QByteArray &fault) {
                const LogBed bed;
                const BedLogger logger(bed);
                logger.log(u"before"_s);
                const QString path = logger->currentLogFileInfo().value().filePath();
                const QString elsewhere = bed.home() + u"/elsewhere"_s;
                if (fault == "deleted")
                    QVERIFY(QFile::remove(path));
                else if (fault == "folder removed")
                    QVERIFY(QDir(bed.folder()).removeRecursively());
                else if (fault == "link")
                    QVERIFY(QFile::rename(path, elsewhere) && QFile::link(elsewhere, path));
                else
                    QCOMPARE(close(descriptorOf(path)), 0);
                // The news reaches the logger a moment later, and lines before it follow the file that went.
                QStringList after;
                const auto logOnceMore = [&] {
                    after.append(QString::number(after.size()));
                    logger.log(after.last());
                    return bed.lines().contains(after.last());
                };
                QTRY_VERIFY(logOnceMore());
                QVERIFY(logOnceMore());
                QCOMPARE(QFileInfo(path).isSymLink(), fault == "link");
                if (fault == "descriptor closed")
                    QCOMPARE(bed.lines(), QStringList(u"before"_s) + after);
            });
    }

    void diskIsFull()
    {
        eachRow(
            {
                {"small file system", true},
                {"file size limit", false},
            },
            [&](bool isMounted) {
                if (isMounted && !m_canMount)
                    QSKIP("this user may not mount; the other row fills up a file instead");
                const LogBed bed;
                QVERIFY(QDir().mkpath(bed.folder()));
                std::optional<PrivateMount> mount;
                QFile filler(bed.path(u"filler"_s));
                if (isMounted) {
                    QVERIFY(mount.emplace(bed.folder(), "tmpfs", "size=96k").isThere());
                    QVERIFY(filler.open(QIODevice::WriteOnly) && filler.write(QByteArray(32768, '\0')) == 32768);
                    filler.close();
                } else {
                    limitFileSize(60000);
                }
                const BedLogger logger(bed);
                const QString line(7000, u'y');
                QStringList logged;
                for (int number = 0; number < 12; ++number) {
                    logged.append(line + QString::number(number));
                    logger.log(logged.last());
                }
                QVERIFY(bed.console().contains(u"WTFileLogger: Failed to write data: "_s));
                if (isMounted)
                    QVERIFY(filler.remove());
                else
                    limitFileSize(RLIM_INFINITY);
                const qsizetype kept = bed.lines().size();
                QVERIFY(kept > 4 && kept < 12);
                QCOMPARE(bed.lines(), logged.first(kept));
                logger.log(u"there is room again"_s);
                QCOMPARE(bed.lines().sliced(kept), QStringList(u"there is room again"_s));
            });
    }

    void folderIsReadOnly()
    {
        const LogBed bed;
        QVERIFY(QDir().mkpath(bed.folder()));
        const QByteArray folder = QFile::encodeName(bed.folder());
        QCOMPARE(chmod(folder, 0500), 0);
        const BedLogger logger(bed);
        logger.log(u"lost"_s);
        QCOMPARE(bed.names(), QStringList());
        QVERIFY(bed.console().contains(u"WTFileLogger: Failed to create new log file: Permission denied"_s));
        QCOMPARE(chmod(folder, 0700), 0);
        logger.log(u"kept"_s);
        QCOMPARE(bed.lines(), QStringList(u"kept"_s));
    }

    void fileSystemWithoutAttributes()
    {
        if (!m_canMount)
            QSKIP("this user may not mount, and every other file system here has attributes");
        const LogBed bed;
        QVERIFY(QDir().mkpath(bed.folder()));
        const PrivateMount mount(bed.folder(), "ramfs", "mode=700");
        QVERIFY(mount.isThere());
        const BedLogger logger(bed);
        for (int number = 0; number < 3; ++number) {
            logger.log(QString::number(number));
            logger->rollLogFile();
        }
        logger.log(u"last"_s);
        QCOMPARE(bed.names().size(), 4);
        QStringList lines = bed.lines();
        lines.sort();
        QCOMPARE(lines, QStringList({u"0"_s, u"1"_s, u"2"_s, u"last"_s}));
        QCOMPARE(bed.console().count(u"user.quillmark.log.archived"_s), 1);
    }

    void severalProcessesShareAFile()
    {
        constexpr int threads = 4, lines = 500;
        const LogBed bed;
        bed.leaveFile(u"x.log"_s);
        const QString shared = bed.folder() + u"/log_writer 2999-01-01--00-00-00-UTC.log"_s;
        QVERIFY(QFile::rename(bed.path(bed.names().first()), shared));
        QProcess one, another;
        QStringList told;
        for (QProcess *writer : {&one, &another})
            startWriter(*writer, {bed.folder(), QString::number(threads), QString::number(lines)});
        for (QProcess *writer : {&one, &another}) {
            QVERIFY(writer->waitForFinished());
            told += linesOf(writer->readAllStandardOutput());
        }
        QStringList written;
        QVERIFY(readFlood(bed, written) && bed.names().size() == 1);
        QCOMPARE(written.size(), 2 * threads * lines);
        QCOMPARE(QSet<QString>(written.begin(), written.end()), QSet<QString>(told.begin(), told.end()));
    }

    void killedWhileFourThreadsLog()
    {
        for (const int after : {1, 1000}) {
            const LogBed bed;
            QProcess writer;
            startWriter(writer, {bed.folder(), u"4"_s, u"1000000"_s});
            QByteArray told;
            while (told.count('\n') < after && writer.waitForReadyRead())
                told += writer.readAllStandardOutput();
            writer.kill();
            QVERIFY(writer.waitForFinished());
            told += writer.readAllStandardOutput();
            QCOMPARE(writer.exitStatus(), QProcess::CrashExit);
            QStringList written;
            QVERIFY(readFlood(bed, written));
            QSet<QString> missing;
            for (const QString &line : linesOf(told.first(told.lastIndexOf('\n') + 1)))
                missing.insert(line);
            QVERIFY(missing.size() >= after);
            missing.subtract(QSet<QString>(written.begin(), written.end()));
            QCOMPARE(missing, QSet<QString>());
        }
    }

    void writesWithoutALock()
    {
        const LogBed bed;
        lockRefusal = EOPNOTSUPP;
        locksAsked = exclusiveLocks = 0;
        const BedLogger logger(bed);
        QStringList logged;
        for (int number = 0; number < 100; ++number)
            logger.log(logged.emplace_back(QString::number(number)));
        QCOMPARE(bed.lines(), logged);
        QVERIFY2(locksAsked < 4, "the refusal is remembered");
        QVERIFY2(exclusiveLocks == locksAsked, "a lock that is shared keeps no other writer out");
        // Without a lock it is the kernel that keeps the lines of two processes apart.
        QVERIFY(fcntl(descriptorOf(bed.path(bed.names().first())), F_GETFL) & O_APPEND);
        QCOMPARE(bed.console().count(u'\n'), 1);
    }

    void noticesADeletionWithoutAWatch()
    {
        const LogBed bed;
        hasNoWatches = true;
        const BedLogger logger(bed);
        for (const QString &text : {u"one"_s, u"two"_s, u"three"_s}) {
            logger.log(text);
            QCOMPARE(bed.lines(), QStringList(text));
            const QString path = bed.path(bed.names().first());
            QVERIFY(QFile::rename(path, bed.home() + u'/' + text));
            if (text == u"one"_s)
                QVERIFY2(QFile(path).open(QIODevice::WriteOnly), "another file in its place");
        }
        QCOMPARE(bed.console().count(u"cannot be watched"_s), 1);
    }

    void growsOldWithoutATimer()
    {
        const LogBed bed;
        hasNoTimers = true;
        const BedLogger logger(bed);
        // A file counts as old one second ahead of its time.
        logger->setRollingFrequency(1.3);
        logger.log(u"one"_s);
        QTest::qWait(400);
        logger.log(u"two"_s);
        logger.log(u"three"_s);
        QCOMPARE(bed.names().size(), 2);
        QCOMPARE(bed.console().count(u"No timer"_s), 1);
    }

    void flushesToTheDisk()
    {
        const LogBed bed;
        const BedLogger logger(bed);
        logger.log(u"one"_s);
        synchronizations = 0;
        WTLog::flushLog();
        QVERIFY(synchronizations > 0);
    }

    void reachesTheSystemsLogs()
    {
        if (!m_canMount)
            QSKIP("this user may not mount, and the sockets of the machine's own logs are not his");
        eachRow(
            {
                {"error", quint64{WTLogFlagError}, "PRIORITY=3\n", "<10>"},
                {"warning", quint64{WTLogFlagWarning}, "PRIORITY=6\n", "<11>"},
                {"info", quint64{WTLogFlagInfo}, "PRIORITY=6\n", "<12>"},
                {"debug", quint64{WTLogFlagDebug}, "PRIORITY=7\n", "<13>"},
            },
            [](quint64 flag, const char *journal, const char *syslog) {
                const PrivateMount run(u"/run"_s, "tmpfs", "mode=755"), devices(u"/dev"_s, "tmpfs", "mode=755");
                QVERIFY(run.isThere() && devices.isThere() && QDir().mkpath(u"/run/systemd/journal"_s));
                const LogSocket journalSocket("/run/systemd/journal/socket"), syslogSocket("/dev/log");
                WTOSLogger toTheJournal;
                WTASLLogger toTheSyslog(std::make_unique<SyslogClient>());
                // What was read from a system's log is not written to it again.
                for (const QString &file : {u"a/WTASLLogCapture.cpp"_s, u"a/b.cpp"_s}) {
                    const auto message = WTLogMessage::initWithMessage(file + u" text"_s, WTLogLevelAll, flag, 0,
                                                                       {file.toUtf8(), {}, 0}, {}, 0, std::nullopt);
                    toTheJournal.logMessage(message);
                    toTheSyslog.logMessage(message);
                }
                const QByteArray toJournal = journalSocket.received(), toSyslog = syslogSocket.received();
                QVERIFY2(toJournal.contains("MESSAGE=a/b.cpp text\n") && toJournal.contains(journal), toJournal);
                QVERIFY2(toSyslog.startsWith(syslog) && toSyslog.contains(" com.apple.console: a/b.cpp text"),
                         toSyslog);
            });
    }

private:
    const bool m_canMount;
};

int main(int argumentCount, char **arguments)
{
    const bool canMount = PrivateMount::enter();
    QCoreApplication application(argumentCount, arguments);
    LogFaultsTests test(canMount);
    return QTest::qExec(&test, argumentCount, arguments);
}

#include "LogFaultsTests.moc"
