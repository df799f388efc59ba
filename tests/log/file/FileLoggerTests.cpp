#include "Locked.h"
#include "LogBed.h"
#include "Rows.h"
#include "WTFileLogger.h"
#include "WTLog.h"
#include "WTLogFileManagerDefault.h"

#include <QFile>
#include <QRegularExpression>
#include <future>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr double day = 24 * 60 * 60;

/// A default manager that keeps what it is told.
class ToldManager : public WTLogFileManagerDefault
{
public:
    using WTLogFileManagerDefault::WTLogFileManagerDefault;
    void didArchiveLogFile(const QString &path, bool wasRolled) override
    {
        m_told.change([&](QStringList &told) { told.append((wasRolled ? u"rolled "_s : u"found "_s) + path); });
    }

    QStringList told()
    {
        return m_told.change([](QStringList &told) { return told; });
    }

private:
    Locked<QStringList> m_told;
};

template <typename Logger>
std::shared_ptr<Logger> loggerOf(const std::shared_ptr<WTLogFileManaging> &manager)
{
    auto logger = std::make_shared<Logger>(manager);
    logger->setLogFormatter(nullptr);
    return logger;
}

void logTo(const std::shared_ptr<WTFileLogger> &logger, const QString &text)
{
    WTLog::addLogger(logger);
    WTLog::log(false, WTLogLevelAll, WTLogFlagInfo, 0, "", "", 0, {}, "%@", text);
}

/// Ends the logging of a row before that which its loggers refer to goes.
struct Silence {
    ~Silence()
    {
        WTLog::removeAllLoggers();
        WTLog::flushLog();
    }
};

} // namespace

/// The file logger on the real file system, one logger at a time.
class FileLoggerTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        WTLog::removeAllLoggers();
        QVERIFY(WTLog::allLoggers().isEmpty());
    }

    void writesStampedLinesIntoAFolderMadeForThem()
    {
        const LogBed bed;
        const auto logger = std::make_shared<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()));
        QVERIFY(!QFile::exists(bed.folder()));
        logTo(logger, u"text"_s);
        static const QRegularExpression line(u"\\A\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d:\\d{3}  text\\z"_s);
        QVERIFY(line.match(bed.lines().value(0)).hasMatch());
    }

    void takesUpTheNewestFile()
    {
        eachRow(
            {
                {"fresh", 99LL, 0.0, QByteArray(), true, false},
                {"full", 1048576LL, 0.0, QByteArray(), false, true},
                {"too old", 99LL, day, QByteArray(), false, true},
                {"archived", 99LL, 0.0, QByteArray("archived"), false, false},
                {"a symbolic link", 99LL, 0.0, QByteArray("link"), false, false},
                {"a pipe", 99LL, 0.0, QByteArray("pipe"), false, false},
            },
            [&](qint64 size, double age, const QByteArray &state, bool isTakenUp, bool isTold) {
                const LogBed bed;
                const QString left = bed.leaveFile(u"2999-01-01--00-00-00-UTC.log"_s, size);
                const QString moved = bed.home() + u"/moved"_s;
                if (state == "link")
                    QVERIFY(QFile::rename(left, moved) && QFile::link(moved, left));
                if (state == "pipe")
                    QVERIFY(QFile::remove(left) && mkfifo(QFile::encodeName(left), 0600) == 0);
                if (state == "archived")
                    WTLogFileInfo(left).setIsArchived(true);
                std::atomic<qint64> milliseconds = static_cast<qint64>(age * 1000);
                const auto later = [&] { return QDateTime::currentDateTime().addMSecs(milliseconds); };
                const auto manager = std::make_shared<ToldManager>(bed.folder(), later);
                const Silence silence;
                const auto logger = loggerOf<WTFileLogger>(manager);
                const QString chosen = logger->currentLogFileInfo().value().filePath();
                milliseconds = 0;
                logTo(logger, u"text"_s);
                QCOMPARE(bed.names().size(), isTakenUp ? 1 : 2);
                QCOMPARE(logger->currentLogFileInfo().value().filePath() == left, isTakenUp);
                if (state != "pipe")
                    QCOMPARE(chosen, logger->currentLogFileInfo().value().filePath());
                if (state == "link")
                    QCOMPARE(QFileInfo(moved).size(), size);
                if (isTold)
                    QTRY_COMPARE(manager->told(), QStringList(u"found "_s + left));
                QCOMPARE(manager->told().isEmpty(), !isTold);
                QCOMPARE(WTLogFileInfo(left).isArchived(), isTold || state == "archived");
            });
    }

    void rollsWhenTheSizeIsReached()
    {
        eachRow(
            {
                {"exactly", quint64(10), 2},
                {"no limit", quint64(0), 1},
            },
            [&](quint64 maximum, int files) {
                const LogBed bed;
                const auto manager = std::make_shared<ToldManager>(bed.folder());
                const Silence silence;
                const auto logger = loggerOf<WTFileLogger>(manager);
                logger->setMaximumFileSize(maximum);
                logTo(logger, u"234567890"_s.left(9));
                const QString first = bed.path(bed.names().first());
                logger->logData("x");
                QCOMPARE(bed.names().size(), files);
                if (files > 1)
                    QTRY_COMPARE(manager->told(), QStringList(u"rolled "_s + first));
                QCOMPARE(WTLogFileInfo(first).isArchived(), files > 1);
            });
    }

    void rollsOnRequest()
    {
        const LogBed bed;
        const auto completion = std::make_shared<SerialQueue>(u"completion"_s);
        const auto logger =
            std::make_shared<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()), completion);
        logTo(logger, u"one"_s);
        std::promise<QString> label;
        logger->rollLogFileWithCompletionBlock([&] { label.set_value(SerialQueue::currentLabel()); });
        QCOMPARE(label.get_future().get(), u"completion"_s);
        QCOMPARE(bed.names().size(), 1);
        logTo(logger, u"two"_s);
        QCOMPARE(bed.names().size(), 2);
        WTLog::removeLogger(logger);
        QTRY_VERIFY(WTLogFileInfo(bed.path(bed.names().last())).isArchived() &&
                    WTLogFileInfo(bed.path(bed.names().first())).isArchived());
    }

    /// The clock jumps, and the frequency changes, while the file is open.
    void rollsWithAge()
    {
        eachRow(
            {
                {"when the timer is due", 0.0, 1.3, true},
                {"a second early", day - 0.9, day, true},
                {"what is left of a day", day - 1.6, day, true},
                {"clock set forward", 2 * day, day, true},
                {"never", 2 * day, 0.0, false},
            },
            [&](double clockAhead, double frequency, bool rolls) {
                const LogBed bed;
                std::atomic<qint64> milliseconds = 0;
                const auto clock = [&] { return QDateTime::currentDateTime().addMSecs(milliseconds); };
                const auto manager = std::make_shared<ToldManager>(bed.folder(), clock);
                const Silence silence;
                const auto logger = loggerOf<WTFileLogger>(manager);
                logTo(logger, u"one"_s);
                const QString first = bed.path(bed.names().first());
                milliseconds = static_cast<qint64>(clockAhead * 1000);
                logger->setRollingFrequency(frequency);
                QCOMPARE(logger->rollingFrequency(), frequency);
                // What is due, or is within a second, does not wait for the timer.
                QCOMPARE(WTLogFileInfo(first).isArchived(), rolls && clockAhead > day - 1);
                if (rolls)
                    QTRY_COMPARE(manager->told().size(), 1);
                else
                    QTest::qWait(500);
                QCOMPARE(manager->told().size(), rolls ? 1 : 0);
            });
    }

    void staysWithAFileWhosePermissionsChange()
    {
        const LogBed bed;
        const auto logger = loggerOf<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()));
        logTo(logger, u"one"_s);
        QCOMPARE(chmod(QFile::encodeName(bed.path(bed.names().first())), 0400), 0);
        QTest::qWait(200);
        logTo(logger, u"two"_s);
        QCOMPARE(bed.names().size(), 1);
    }

    void endsWithoutArchiving()
    {
        const LogBed bed;
        auto logger = loggerOf<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()));
        logger->logData("one\nthe line of a writer that was kil");
        logger->flush();
        logger.reset();
        loggerOf<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()))->logData("two\n");
        QCOMPARE(bed.names().size(), 1);
        QCOMPARE(bed.lines(), QStringList({u"one"_s, u"the line of a writer that was kil"_s, u"two"_s}));
        QCOMPARE(permissionsOf(bed.path(bed.names().first())), 0600U);
        QCOMPARE(bed.console(), QString());
    }
};

QTEST_GUILESS_MAIN(FileLoggerTests)
#include "FileLoggerTests.moc"
