#include "CrashReport.h"
#include "Rows.h"
#include "WTLogFileFormatterDefault.h"
#include "WTLogFormatter.h"
#include "WTLogMessage.h"

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
    return WTLogMessage::initWithMessage(text, WTLogLevelAll, flag, 0, {file.toUtf8(), "void f()", 12}, {}, 0, date)
        .spokenBy({42, {}, {}});
}

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
        const auto summer = winterMorning + 24h * 20;
        const QString later = u"[2026-03-29 09:05:07.089 TID:    42] \U0001F7E2 文本"_s;
        eachRow(
            {
                {"error", winterMorning, quint64{1}, head + u"\u274C"_s + place},
                {"warning", winterMorning, quint64{2}, head + u"\u26A0\uFE0F 文本"_s},
                {"info", winterMorning, quint64{4}, head + u"\U0001F7E2 文本"_s},
                {"in summer", summer, quint64{4}, later},
            },
            [&](std::chrono::system_clock::time_point date, quint64 flag, const QString &expected) {
                const WTLogMessage message = messageWith(flag, u"文本"_s, u"s.rc/a.b.cpp"_s, date);
                QCOMPARE(WTLogFormatter().formatLogMessage(message).value(), expected);
            });
        // A file's own lines are in universal time.
        const auto line = WTLogFileFormatterDefault().formatLogMessage(messageWith(4, u"文本"_s));
        QCOMPARE(line, u"2026/03/09 07:05:07:089  文本"_s);
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
