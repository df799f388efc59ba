#include "AclReplyHeader.h"
#include "LogCollector.h"
#include "PrinterBed.h"
#include "PrinterOperation.h"
#include "Rows.h"
#include "TextFormat.h"
#include "WTManager.h"

using namespace Qt::Literals::StringLiterals;

/// What the printer commands log, and what they refuse, in front of the emulated printer.
class PrinterCommandLogTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_bed.discover()); }
    void init() { m_bed.reset(); }
    void logsTheExchange_data();
    void logsTheExchange();
    void refusesAWakeUpWithoutUriAtOnce();
    void triesACapabilityCheckWithoutUri();
    void warnsOfALocationOfZeroOnly();
    void sendsNoConfigurationThatDoesNotFit();

private:
    PrinterBed m_bed;
};

void PrinterCommandLogTests::logsTheExchange_data()
{
    const auto reply = [](const QString &command, const char *rest = "000000000000000000000000") {
        return *describeReplyHeader(QByteArray::fromHex("00ac" + command.toLatin1() + rest));
    };
    const auto sent = [](const QString &command, int size = 59) {
        return u"info: send ACL:0x%1, uri:URI, data:{length = %2, "_s.arg(command).arg(size) +
               u"bytes = 0x1b252d31323334355840504a4c20454e ... 252d313233343558}"_s;
    };
    const char *success = "000100000000000000000000";
    const Rows<Operation, PrinterFault, QStringList> row{"operation", "fault", "lines"};
    row("wake-up", Operation::WakeUp, {},
        {sent(u"FF21"_s), u"info: 返回 ACL:0xFF21, headData:"_s + reply(u"FF21"_s),
         u"info: ACL:0xFF21, uri:URI, 最终返回 👉 data:(null)"_s});
    row("capability", Operation::Capability, {},
        {sent(u"FF81"_s), u"info: 返回 ACL:0xFF81, headData:"_s + reply(u"FF81"_s, success),
         u"info: send_cmd:0xFF81 header data:"_s + reply(u"FF81"_s, success), u"info: recv_cmd:0xFF81 result:0x1"_s,
         u"info: cb_success!"_s});
    row("capability, another command", Operation::Capability, {.echo = 0xFF82},
        {sent(u"FF81"_s), u"info: 返回 ACL:0xFF81, headData:"_s + reply(u"FF82"_s, success),
         u"warning: CMD not matched! msg:acl 失败，失败原因：cmd not matched! send:0xFF81, recv:0xFF82"_s,
         u"info: send_cmd:0xFF81 header data:(null)"_s, u"error: no header data!"_s});
    row("capability, a stall", Operation::Capability, {.stallIn = true},
        {sent(u"FF81"_s), u"info: 返回 ACL:0xFF81, headData:(null)"_s, u"error: FF81 返回错误：WTCOM"_s,
         u"info: send_cmd:0xFF81 header data:(null)"_s, u"error: no header data!"_s});
    row("configuration", Operation::Configuration, {},
        {sent(u"FF80"_s, 267), u"info: recv ACL:0xFF80, header:"_s + reply(u"FF80"_s, success)});
    row("address", Operation::Address, {.data = "10.0.0.7"_ba.leftJustified(16, '\0')},
        {sent(u"FF0F"_s), u"info: recv ACL:0xFF0F, header:"_s + reply(u"FF0F"_s, "000100100000000000000000"),
         u"info: 0xFF0F:1"_s, u"info: IP:10.0.0.7"_s, u"info: IPv4:10.0.0.7, IPv6:, unstatus:"_s});
    row("information page", Operation::InformationPage, {},
        {sent(u"FF84"_s), u"info: 返回 ACL:0xFF84, headData:"_s + reply(u"FF84"_s),
         u"info: ACL:0xFF84, uri:URI, 最终返回 👉 data:(null) error:(null)"_s,
         u"info: send_cmd:0xFF84 header data:"_s + reply(u"FF84"_s), u"info: recv_cmd:0xFF84 result:0x0"_s,
         u"info: cb_success!"_s});
}

void PrinterCommandLogTests::logsTheExchange()
{
    QFETCH(Operation, operation);
    QFETCH(PrinterFault, fault);
    QFETCH(QStringList, lines);
    m_bed.reset(scriptWith(operation, fault));
    const LogCollector log;
    QCOMPARE(m_bed.perform(operation)->calls(), 1);
    QCOMPARE(log.lines(), lines.replaceInStrings(u"URI"_s, m_bed.uri()));
}

void PrinterCommandLogTests::refusesAWakeUpWithoutUriAtOnce()
{
    const LogCollector log;
    const auto answer = start(Operation::WakeUp, u" "_s);
    QCOMPARE(answer->calls(), 1);
    QCOMPARE(answer->text(), u"0, invalid URI!"_s);
    QCOMPARE(log.lines(), QStringList{u"error: invalid URI!"_s});
}

void PrinterCommandLogTests::triesACapabilityCheckWithoutUri()
{
    const LogCollector log;
    const auto answer = start(Operation::Capability, {});
    QCOMPARE(answer->calls(), 0);
    QVERIFY(m_bed.runUntil([&] { return answer->calls() > 0; }));
    QCOMPARE(answer->text(), u"1, 0x0"_s);
    QCOMPARE(log.lines().constFirst(), u"error: checkWiFiCapabilityFromPrinter, printerURI:  locationID:0x1100000"_s);
}

void PrinterCommandLogTests::warnsOfALocationOfZeroOnly()
{
    const LogCollector log;
    bool awake = false;
    WTManager::wt_wakeUpPrinter(m_bed.uri(), 0, [&](bool success, const auto &) { awake = success; });
    QVERIFY(m_bed.runUntil([&] { return awake; }));
    QCOMPARE(log.lines().constFirst(), u"warning: invalid locationID!"_s);
}

void PrinterCommandLogTests::sendsNoConfigurationThatDoesNotFit()
{
    const LogCollector log;
    const int framesBefore = m_bed.bus.record().count(0xFF80);
    const QString longPassword = networkPassword + networkPassword;
    Answer nameless;
    Answer tooLong;
    WTManager::wifiConfigForPrinter(m_bed.uri(), 1, u" \n"_s, networkPassword,
                                    [&](const ResultAnswer &answer) { nameless.give(answer); });
    WTManager::wifiConfigForPrinter(m_bed.uri(), 1, networkName, longPassword,
                                    [&](const ResultAnswer &answer) { tooLong.give(answer); });
    QVERIFY(m_bed.runUntil([&] { return tooLong.calls() > 0; }));

    QCOMPARE(tooLong.text(), u"1, 0x0"_s);
    QVERIFY(!tooLong.wasGivenOn(thread()));
    QCOMPARE(nameless.calls(), 0);
    QCOMPARE(m_bed.bus.record().count(0xFF80), framesBefore);
    const QStringList lines = log.lines();
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.first(), u"error: dirty data👉🏻ssid: \\u000A"_s);
    QVERIFY(lines.last().startsWith("error: "_L1));
    QVERIFY(!tellsSecret(lines));
}

QTEST_GUILESS_MAIN(PrinterCommandLogTests)
#include "PrinterCommandLogTests.moc"
