#include "LogBed.h"
#include "WTFileLogger.h"
#include "WTLog.h"
#include "WTLogFileManagerDefault.h"

#include <QFile>
#include <QTest>
#include <cerrno>
#include <sys/syscall.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

std::atomic<int> lockRefusal = 0, locksAsked = 0, synchronizations = 0;
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

extern "C" int timerfd_create(int clock, int flags) noexcept
{
    return hasNoTimers ? refuse(EMFILE) : static_cast<int>(syscall(SYS_timerfd_create, clock, flags));
}

/// What becomes of the log when the system refuses what the log asks of it.
class LogRefusalsTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        WTLog::removeAllLoggers();
        WTLog::flushLog();
        lockRefusal = 0;
        hasNoWatches = hasNoTimers = false;
    }

    void writesWithoutALock()
    {
        const LogBed bed;
        startLogger(bed);
        lockRefusal = EOPNOTSUPP;
        locksAsked = 0;
        QStringList logged;
        for (int number = 0; number < 100; ++number)
            log(logged.emplace_back(QString::number(number)));
        QCOMPARE(bed.lines(), logged);
        QVERIFY2(locksAsked < 4, "the refusal is remembered");
        QCOMPARE(bed.console().count(u'\n'), 1);
    }

    void noticesADeletionWithoutAWatch()
    {
        const LogBed bed;
        hasNoWatches = true;
        startLogger(bed);
        for (const QString &text : {u"one"_s, u"two"_s, u"three"_s}) {
            log(text);
            QCOMPARE(bed.lines(), QStringList(text));
            QVERIFY(QFile::remove(bed.path(bed.names().first())));
        }
        QCOMPARE(bed.console().count(u"cannot be watched"_s), 1);
    }

    void rollsByAgeWithoutATimer()
    {
        const LogBed bed;
        hasNoTimers = true;
        startLogger(bed);
        log(u"one"_s);
        m_secondsAhead = 2 * 24 * 60 * 60;
        log(u"two"_s);
        m_secondsAhead = 0;
        QCOMPARE(bed.names().size(), 2);
        QVERIFY(bed.console().contains(u"No timer"_s));
    }

    void flushesToTheDisk()
    {
        const LogBed bed;
        startLogger(bed);
        log(u"one"_s);
        synchronizations = 0;
        WTLog::flushLog();
        QVERIFY(synchronizations > 0);
    }

private:
    void startLogger(const LogBed &bed)
    {
        const auto clock = [this] { return QDateTime::currentDateTime().addSecs(m_secondsAhead); };
        const auto manager = std::make_shared<WTLogFileManagerDefault>(bed.folder(), clock);
        const auto logger = std::make_shared<WTFileLogger>(manager);
        logger->setLogFormatter(nullptr);
        WTLog::addLogger(logger);
    }

    static void log(const QString &text)
    {
        WTLog::log(false, WTLogLevelAll, WTLogFlagInfo, 0, "", "", 0, {}, "%@", text);
    }

    std::atomic<qint64> m_secondsAhead = 0;
};

QTEST_GUILESS_MAIN(LogRefusalsTests)
#include "LogRefusalsTests.moc"
