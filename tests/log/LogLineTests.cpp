#include "CrashReport.h"
#include "JournalLog.h"
#include "Rows.h"
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

WTLogMessage messageWith(quint64 flag, const QString &text, const QString &file = u"s.rc/a.b.cpp"_s,
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

} // namespace

class LogLineTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
        tzset();
    }

    void laysOutLines()
    {
        const QString head = u"[2026-03-09 08:05:07.089 TID:    42] "_s;
        const QString place = u" <FileName: a.b> <Function: void f()> <Line: 12> 文本"_s;
        eachRow(
            {
                {"error", quint64{1}, head + u"\u274C"_s + place},
                {"warning", quint64{2}, head + u"\u26A0\uFE0F 文本"_s},
                {"info", quint64{4}, head + u"\U0001F7E2 文本"_s},
            },
            [&](quint64 flag, const QString &expected) {
                QCOMPARE(WTLogFormatter().formatLogMessage(messageWith(flag, u"文本"_s)).value(), expected);
            });
    }

    void followsTheTimeZone()
    {
        eachRow(
            {
                {"before summer time", qint64{3599}, u"2026-03-29 01:59:59.000"_s},
                {"summer time", qint64{3600}, u"2026-03-29 03:00:00.000"_s},
            },
            [&](qint64 secondsAfterMidnight, const QString &expected) {
                const std::chrono::system_clock::time_point date{
                    std::chrono::seconds{1774742400 + secondsAfterMidnight}};
                QVERIFY(WTLogFormatter()
                            .formatLogMessage(messageWith(4, {}, {}, date))
                            ->startsWith(u'[' + expected + u' '));
            });
    }

    void mapsFlagsForTheSystemLogs()
    {
        eachRow(
            {
                {"error", quint64{1}, 3, 2},
                {"warning", quint64{2}, 6, 3},
                {"info", quint64{4}, 6, 4},
                {"debug", quint64{8}, 7, 5},
                {"verbose", quint64{16}, 7, 5},
                {"none", quint64{0}, 7, 5},
            },
            [&](quint64 flag, int journalPriority, int systemLogLevel) {
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
            });
    }

    void reportsACrash()
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
};

QTEST_GUILESS_MAIN(LogLineTests)
#include "LogLineTests.moc"
