#include "Locked.h"
#include "LogBed.h"
#include "WTFileLogger.h"
#include "WTLog.h"
#include "WTLogFileManagerDefault.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>
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

/// A manager of the older kind: creates files without an error, and hears the two narrower notifications.
class OlderManager : public ToldManager
{
public:
    using ToldManager::ToldManager;
    NewLogFile createNewLogFileWithError() override { return WTLogFileManaging::createNewLogFileWithError(); }
    std::optional<QString> createNewLogFile() override
    {
        return m_isBroken ? std::nullopt : WTLogFileManagerDefault::createNewLogFileWithError().path;
    }
    void didArchiveLogFile(const QString &path, bool wasRolled) override
    {
        WTLogFileManaging::didArchiveLogFile(path, wasRolled);
    }
    void didArchiveLogFile(const QString &path) override { ToldManager::didArchiveLogFile(path, false); }
    void didRollAndArchiveLogFile(const QString &path) override { ToldManager::didArchiveLogFile(path, true); }

    std::atomic<bool> m_isBroken = false;
};

class FixedText : public WTLogFormatting
{
public:
    explicit FixedText(const std::optional<QString> &text)
        : m_text(text)
    {
    }
    std::optional<QString> formatLogMessage(const WTLogMessage &message) override
    {
        return m_text == u"<same>"_s ? message.message() : m_text;
    }

private:
    const std::optional<QString> m_text;
};

/// Notes the calls of its hooks.
class HookedLogger : public WTFileLogger
{
public:
    using WTFileLogger::WTFileLogger;
    QStringList calls;
    bool refusesRecentFile = false;

protected:
    void willLogMessage(const WTLogFileInfo &info) override { calls.append(u"will "_s + info.filePath()); }
    void didLogMessage(const WTLogFileInfo &info) override
    {
        calls.append(u"did "_s + info.filePath());
        WTFileLogger::didLogMessage(info);
    }
    using WTFileLogger::didLogMessage;
    using WTFileLogger::willLogMessage;
    bool shouldArchiveRecentLogFileInfo(const WTLogFileInfo & /*info*/) override { return refusesRecentFile; }
};

class OlderHookedLogger : public HookedLogger
{
public:
    using HookedLogger::HookedLogger;
    void callFromOutside() { WTFileLogger::willLogMessage(); }

protected:
    void willLogMessage() override { calls.append(u"will"_s); }
    void didLogMessage() override { calls.append(u"did"_s); }
    using HookedLogger::didLogMessage;
    using HookedLogger::willLogMessage;
};

class ThrowingLogger : public WTFileLogger
{
public:
    using WTFileLogger::WTFileLogger;

protected:
    void willLogMessage(const WTLogFileInfo & /*info*/) override { throw std::runtime_error("no way"); }
    using WTFileLogger::willLogMessage;
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

    void defaults()
    {
        const LogBed bed;
        const auto manager = std::make_shared<WTLogFileManagerDefault>(bed.folder());
        const auto logger = std::make_shared<WTFileLogger>(manager);
        QCOMPARE(logger->rollingFrequency(), day);
        QCOMPARE(logger->maximumFileSize(), 1048576U);
        QCOMPARE(logger->loggerQueue()->label(), u"com.wtlog.fileLogger"_s);
        logger->setMaximumFileSize(0x6400000);
        QCOMPARE(logger->maximumFileSize(), 104857600U);
        QCOMPARE(manager->logFilesDiskQuota(), 20971520U);
        QCOMPARE(manager->maximumNumberOfLogFiles(), 5U);
        QVERIFY(!QFile::exists(bed.folder()));
        logTo(logger, u"text"_s);
        static const QRegularExpression line(u"\\A\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d:\\d\\d:\\d{3}  text\\z"_s);
        QVERIFY(line.match(bed.lines().value(0)).hasMatch());
    }

    void takesUpTheNewestFile_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<double>("age");
        QTest::addColumn<QByteArray>("state");
        QTest::addColumn<bool>("isTakenUp");
        QTest::addColumn<bool>("isTold");
        QTest::newRow("fresh") << 99LL << 0.0 << QByteArray() << true << false;
        QTest::newRow("almost full and old") << 1048000LL << day - 60 << QByteArray() << true << false;
        QTest::newRow("full") << 1048576LL << 0.0 << QByteArray() << false << true;
        QTest::newRow("too old") << 99LL << day << QByteArray() << false << true;
        QTest::newRow("clock was set back") << 99LL << -9 * day << QByteArray() << true << false;
        QTest::newRow("archived") << 99LL << 0.0 << QByteArray("archived") << false << false;
        QTest::newRow("a symbolic link") << 99LL << 0.0 << QByteArray("link") << false << false;
        QTest::newRow("a pipe") << 99LL << 0.0 << QByteArray("pipe") << false << false;
        QTest::newRow("none is to be used again") << 99LL << 0.0 << QByteArray("doNotReuse") << false << true;
        QTest::newRow("refused by the subclass") << 99LL << 0.0 << QByteArray("refused") << false << true;
    }

    void takesUpTheNewestFile()
    {
        QFETCH(qint64, size);
        QFETCH(double, age);
        QFETCH(QByteArray, state);
        QFETCH(bool, isTakenUp);
        QFETCH(bool, isTold);
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
        const auto logger = loggerOf<HookedLogger>(manager);
        logger->setDoNotReuseLogFiles(state == "doNotReuse");
        logger->refusesRecentFile = state == "refused";
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
    }

    void linesOfFormatters_data()
    {
        QTest::addColumn<std::optional<QString>>("formatted");
        QTest::addColumn<bool>("appends");
        QTest::addColumn<QByteArray>("bytes");
        const auto row = [](const char *name, const std::optional<QString> &formatted, bool appends,
                            const QByteArray &bytes) { QTest::newRow(name) << formatted << appends << bytes; };
        row("custom", u"ü"_s, true, "ü\n");
        row("custom with its own end", u"ü\n"_s, true, "ü\n");
        row("custom, nothing added", u"ü"_s, false, "ü");
        row("the message's own text", u"<same>"_s, false, "text\n");
        row("dropped", std::nullopt, true, "");
        row("empty", u""_s, true, "");
    }

    void linesOfFormatters()
    {
        QFETCH(std::optional<QString>, formatted);
        QFETCH(bool, appends);
        QFETCH(QByteArray, bytes);
        const LogBed bed;
        const auto logger = std::make_shared<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()));
        logger->setAutomaticallyAppendNewlineForCustomFormatters(appends);
        logger->setLogFormatter(std::make_shared<FixedText>(formatted));
        logTo(logger, u"text"_s);
        QCOMPARE(bed.names().size(), bytes.isEmpty() ? 0 : 1);
        if (bytes.isEmpty())
            return;
        QFile file(bed.path(bed.names().first()));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
    }

    void rollsWhenTheSizeIsReached_data()
    {
        QTest::addColumn<quint64>("maximum");
        QTest::addColumn<int>("files");
        QTest::newRow("exactly") << quint64(10) << 2;
        QTest::newRow("one more") << quint64(12) << 1;
        QTest::newRow("no limit") << quint64(0) << 1;
    }

    void rollsWhenTheSizeIsReached()
    {
        QFETCH(quint64, maximum);
        QFETCH(int, files);
        const LogBed bed;
        const auto manager = std::make_shared<ToldManager>(bed.folder());
        const auto logger = loggerOf<WTFileLogger>(manager);
        logger->setMaximumFileSize(maximum);
        logTo(logger, u"234567890"_s.left(9));
        const QString first = bed.path(bed.names().first());
        logger->logData("x");
        QCOMPARE(bed.names().size(), files);
        if (files > 1)
            QTRY_COMPARE(manager->told(), QStringList(u"rolled "_s + first));
        QCOMPARE(WTLogFileInfo(first).isArchived(), files > 1);
    }

    void olderManagers()
    {
        const LogBed bed;
        const QString left = bed.leaveFile(u"2999-01-01--00-00-00-UTC.log"_s, 1048576);
        const auto manager = std::make_shared<OlderManager>(bed.folder());
        const auto logger = loggerOf<WTFileLogger>(manager);
        manager->m_isBroken = true;
        logTo(logger, u"lost"_s);
        QTRY_COMPARE(manager->told(), QStringList(u"found "_s + left));
        QCOMPARE(bed.console(), u"WTFileLogger: Failed to create new log file\n"_s);
        manager->m_isBroken = false;
        logTo(logger, u"kept"_s);
        const QString current = logger->currentLogFileInfo().value().filePath();
        logger->rollLogFile();
        QTRY_COMPARE(manager->told().value(1), u"rolled "_s + current);
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

    void rollsWithAge_data()
    {
        QTest::addColumn<double>("clockAhead");
        QTest::addColumn<double>("frequency");
        QTest::addColumn<bool>("rolls");
        QTest::newRow("when the timer is due") << 0.0 << 1.3 << true;
        QTest::newRow("a second early") << day - 0.9 << day << true;
        QTest::newRow("what is left of a day") << day - 1.6 << day << true;
        QTest::newRow("clock set forward") << 2 * day << day << true;
        QTest::newRow("clock set back") << -2 * day << 1.3 << false;
        QTest::newRow("never") << 2 * day << 0.0 << false;
        QTest::newRow("in millions of years") << 0.0 << 1e300 << false;
    }

    /// The clock jumps, and the frequency changes, while the file is open.
    void rollsWithAge()
    {
        QFETCH(double, clockAhead);
        QFETCH(double, frequency);
        QFETCH(bool, rolls);
        const LogBed bed;
        std::atomic<qint64> milliseconds = 0;
        const auto clock = [&] { return QDateTime::currentDateTime().addMSecs(milliseconds); };
        const auto manager = std::make_shared<ToldManager>(bed.folder(), clock);
        const auto logger = loggerOf<WTFileLogger>(manager);
        logTo(logger, u"one"_s);
        milliseconds = static_cast<qint64>(clockAhead * 1000);
        logger->setRollingFrequency(frequency);
        QCOMPARE(logger->rollingFrequency(), frequency);
        if (rolls)
            QTRY_COMPARE(manager->told().size(), 1);
        else
            QTest::qWait(500);
        QCOMPARE(manager->told().size(), rolls ? 1 : 0);
    }

    void leavesAFileThatAnotherProcessArchived()
    {
        const LogBed bed;
        const auto logger = loggerOf<WTFileLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()));
        logTo(logger, u"one"_s);
        const QString first = bed.path(bed.names().first());
        WTLogFileInfo(first).setIsArchived(true);
        const QString second = logger->currentLogFileInfo().value().filePath();
        QVERIFY(second != first);
        logTo(logger, u"two"_s);
        QCOMPARE(QFileInfo(first).size(), 4);
        QCOMPARE(QFileInfo(second).size(), 4);
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

    void hooks()
    {
        const LogBed bed;
        const auto manager = std::make_shared<WTLogFileManagerDefault>(bed.folder());
        const auto newer = loggerOf<HookedLogger>(manager);
        newer->setMaximumFileSize(1);
        logTo(newer, u"one"_s);
        const QString path = bed.path(bed.names().first());
        QCOMPARE(newer->calls, QStringList({u"will "_s + path, u"did "_s + path}));
        QVERIFY(WTLogFileInfo(path).isArchived());
        WTLog::removeAllLoggers();

        const auto older = loggerOf<OlderHookedLogger>(manager);
        older->callFromOutside();
        logTo(older, u"two"_s);
        QCOMPARE(older->calls, QStringList({u"will"_s, u"did"_s}));
    }

    void exceptionsAreToldTenTimes()
    {
        const LogBed bed;
        const auto logger = loggerOf<ThrowingLogger>(std::make_shared<WTLogFileManagerDefault>(bed.folder()));
        for (int index = 0; index < 12; ++index)
            logTo(logger, u"lost"_s);
        QCOMPARE(bed.console(), u"WTFileLogger.logMessage: no way\n"_s.repeated(10) +
                                    u"WTFileLogger.logMessage: Too many exceptions -- will not log any more of "
                                    "them.\n"_s);
        QCOMPARE(bed.lines(), QStringList());
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
