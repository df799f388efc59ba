#include "CrashReport.h"
#include "JournalLog.h"
#include "WTASLLogger.h"
#include "WTLogFormatter.h"
#include "WTLogMessage.h"
#include "WTOSLogger.h"

#include <QTest>
#include <csignal>
#include <ctime>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// 2026-03-09 08:05:07.089 in central Europe, standard time.
constexpr std::chrono::system_clock::time_point winterMorning{std::chrono::milliseconds{1773039907089}};

WTLogMessage messageWith(quint64 flag, const QString &text, const QString &file = u"src/a.cpp"_s,
                         std::chrono::system_clock::time_point date = winterMorning)
{
    return WTLogMessage::initWithMessage(text, WTLogLevelAll, flag, 0, {file, u"void f()"_s, 12}, {}, 0, date)
        .spokenBy({42, {}, {}});
}

struct Sent {
    int urgency;
    QString text;
    bool operator==(const Sent &) const = default;
};

class FakeSystemLog : public OSLog
{
public:
    void send(OSLogType type, const QString &text) override { sent.append({JournalLog::priority(type), text}); }
    QList<Sent> sent;
};

class FakeClient : public SystemLogClient
{
public:
    explicit FakeClient(QList<Sent> &sent)
        : m_sent(sent)
    {
    }
    void send(int level, const QByteArray &utf8Message) override
    {
        m_sent.append({level, QString::fromUtf8(utf8Message)});
    }

private:
    QList<Sent> &m_sent;
};

class Dropping : public WTLogFormatting
{
public:
    std::optional<QString> formatLogMessage(const WTLogMessage &message) override
    {
        return message.message() == u"drop" ? std::nullopt : std::optional(u"<"_s + message.message() + u">"_s);
    }
};

} // namespace

class LogLineTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void laysOutLines_data();
    void laysOutLines();
    void followsTheTimeZone_data();
    void followsTheTimeZone();
    void mapsFlagsForTheSystemLogs_data();
    void mapsFlagsForTheSystemLogs();
    void sendsWhatTheFormatterMakes();
    void opensOneSystemLogConnection();
    void reachesTheRealLogs();
    void reportsACrash();
};

void LogLineTests::initTestCase()
{
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    tzset();
}

void LogLineTests::laysOutLines_data()
{
    QTest::addColumn<quint64>("flag");
    QTest::addColumn<QString>("expected");
    const QString head = u"[2026-03-09 08:05:07.089 TID:    42] "_s;
    const QString place = u" <FileName: a> <Function: void f()> <Line: 12> 文本"_s;

    QTest::newRow("error") << quint64{1} << head + u"\u274C"_s + place;
    QTest::newRow("warning") << quint64{2} << head + u"\u26A0\uFE0F 文本"_s;
    QTest::newRow("info") << quint64{4} << head + u"\U0001F7E2 文本"_s;
    QTest::newRow("debug") << quint64{8} << head + u"\U0001F468\U0001F3FB\U0001F4BB 文本"_s;
    QTest::newRow("verbose") << quint64{16} << head + u"\U0001F4BC"_s + place;
    QTest::newRow("none") << quint64{0} << head + u"(null) 文本"_s;
    QTest::newRow("unknown") << quint64{32} << head + u"(null) 文本"_s;
    QTest::newRow("two at once") << quint64{5} << head + u"(null) 文本"_s;
}

void LogLineTests::laysOutLines()
{
    QFETCH(quint64, flag);
    QTEST(WTLogFormatter().formatLogMessage(messageWith(flag, u"文本"_s)).value(), "expected");
}

void LogLineTests::followsTheTimeZone_data()
{
    QTest::addColumn<qint64>("secondsAfterMidnight");
    QTest::addColumn<QString>("expected");

    QTest::newRow("before summer time") << qint64{3599} << u"2026-03-29 01:59:59.000"_s;
    QTest::newRow("summer time") << qint64{3600} << u"2026-03-29 03:00:00.000"_s;
}

void LogLineTests::followsTheTimeZone()
{
    QFETCH(qint64, secondsAfterMidnight);
    QFETCH(QString, expected);
    const std::chrono::system_clock::time_point date{std::chrono::seconds{1774742400 + secondsAfterMidnight}};
    QVERIFY(WTLogFormatter().formatLogMessage(messageWith(4, {}, {}, date))->startsWith(u'[' + expected + u' '));
}

void LogLineTests::mapsFlagsForTheSystemLogs_data()
{
    QTest::addColumn<quint64>("flag");
    QTest::addColumn<int>("journalPriority");
    QTest::addColumn<int>("systemLogLevel");

    QTest::newRow("error") << quint64{1} << 3 << 2;
    QTest::newRow("warning") << quint64{2} << 6 << 3;
    QTest::newRow("info") << quint64{4} << 6 << 4;
    QTest::newRow("debug") << quint64{8} << 7 << 5;
    QTest::newRow("verbose") << quint64{16} << 7 << 5;
    QTest::newRow("none") << quint64{0} << 7 << 5;
}

void LogLineTests::mapsFlagsForTheSystemLogs()
{
    QFETCH(quint64, flag);
    QFETCH(int, journalPriority);
    QFETCH(int, systemLogLevel);

    const auto systemLog = std::make_shared<FakeSystemLog>();
    WTOSLogger journal;
    journal.setLogger(systemLog);
    QList<Sent> sent;
    WTASLLogger classic(std::make_unique<FakeClient>(sent));

    for (WTLogger *logger : {static_cast<WTLogger *>(&journal), static_cast<WTLogger *>(&classic)}) {
        logger->logMessage(messageWith(flag, u"text"_s));
        logger->logMessage(messageWith(flag, u"fed back"_s, u"a/WTASLLogCapture.cpp"_s));
    }
    QCOMPARE(systemLog->sent, QList<Sent>({{journalPriority, u"text"_s}}));
    QCOMPARE(sent, QList<Sent>({{systemLogLevel, u"text"_s}}));
}

void LogLineTests::sendsWhatTheFormatterMakes()
{
    QList<Sent> sent;
    const auto logger = std::make_shared<WTASLLogger>(std::make_unique<FakeClient>(sent));
    logger->setLogFormatter(std::make_shared<Dropping>());
    QVERIFY(logger->logFormatter());
    logger->logMessage(messageWith(4, u"text"_s));
    logger->logMessage(messageWith(4, u"drop"_s));
    QCOMPARE(sent, QList<Sent>({{4, u"<text>"_s}}));
}

void LogLineTests::opensOneSystemLogConnection()
{
    QVERIFY(WTASLLogger::init());
    QVERIFY(WTASLLogger::sharedInstance());
    QVERIFY(!WTASLLogger::init());
    QVERIFY(WTASLLogger::sharedInstance() == WTASLLogger::sharedInstance());
}

void LogLineTests::reachesTheRealLogs()
{
    const auto journal = WTOSLogger::sharedInstance();
    QCOMPARE(journal->loggerName(), u"com.wtlog.osLogger"_s);
    QCOMPARE(journal->subsystem(), std::nullopt);
    journal->logMessage(messageWith(8, u"A test of the journal logger."_s));
    JournalLog(u"tests"_s, u"log"_s).send(OSLogType::Debug, u"A test of the journal's fields."_s);
    WTASLLogger::sharedInstance()->logMessage(messageWith(8, u"A test of the system logger: %s."_s));
}

void LogLineTests::reportsACrash()
{
    Crash crash = Crash::ofCurrentThread();
    crash.exceptionName = u"std::logic_error"_s;
    crash.exceptionReason = u"100% wrong"_s;
    const QString report = crashReportText(crash, winterMorning);
    QVERIFY(report.startsWith(
        u"\n[ Uncaught Exception ]\n\nName: std::logic_error, \n\nReason: 100% wrong\n\nProcess: "_s));
    QVERIFY(report.contains(u" [%1]\n\nPath: "_s.arg(getpid())));
    QVERIFY(report.contains(
        u"\n\nIdentifier: (null)\n\nVersion: (null) ((null))\n\nDate/Time: 2026-03-09 08:05:07.007 +0100\n\nOS Version: "_s));
    QVERIFY(report.contains(u"\n\n[ Fe Symbols Start ]\n"_s + crash.symbols().constFirst() + u"\r\n"_s));
    QVERIFY(report.endsWith(u"\r\n[ Fe Symbols End ]\n\n"_s));

    crash.signal = SIGTRAP;
    const QString ofSignal = crashReportText(crash, winterMorning);
    QVERIFY(ofSignal.contains(
        u"\n\nName: UncaughtExceptionHandlerSignalExceptionName, \n\nReason: Signal 5 was raised!\n\nProcess: "_s));
    QVERIFY(ofSignal.contains(u"\n    UncaughtExceptionHandlerSignalKey = 5;\n}[ Fe Symbols End ]\n\n"_s));
    QVERIFY(ofSignal.contains(u"UncaughtExceptionHandlerAddressesKey"_s));
}

QTEST_GUILESS_MAIN(LogLineTests)
#include "LogLineTests.moc"
