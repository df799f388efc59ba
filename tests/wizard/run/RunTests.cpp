#include "InfoList.h"
#include "LogCollector.h"
#include "Rows.h"
#include "RunBed.h"
#include "TextFormat.h"
#include "VirtualTime.h"
#include "WTCUSBPrinter.h"
#include "WTManager.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using namespace EmulatedCommand;

namespace
{

enum class Screen { Complete, Failed, ConfigFailed };

const auto networkName = u"Home 网络"_s;
const auto password = u"correct horse"_s;

PrinterScript silentOn(quint16 command)
{
    return {.faults = {{.command = command, .silent = true}}};
}

/// "supportWifi" of a model whose runs consist of all four commands.
constexpr qint64 supportUnknown = -1;

} // namespace

Q_DECLARE_METATYPE(PrinterScript)
Q_DECLARE_METATYPE(RunCause)

/// The configuration run over real libusb, in virtual time.
class RunTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printerSays_data();
    void printerSays();
    void configurationAnswer_data();
    void configurationAnswer();
    void sendsTheConfigurationThreeTimesAtMost();
    void saysWhyItEnded_data();
    void saysWhyItEnded();
    void logsEachStepAndNoPassword();
    void closeStateFollowsTheRun();
    void answersOfAnEarlierAppearanceAreDropped();
    void newRunAfterReplug();
    void hostThatCannotPollEndsWithoutAddress();

private:
    WTView *expected(RunBed &bed, Screen screen);

    VirtualTime m_time;
};

void RunTests::initTestCase()
{
    InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
}

WTView *RunTests::expected(RunBed &bed, Screen screen)
{
    switch (screen) {
    case Screen::Complete:
        return &bed.complete();
    case Screen::Failed:
        return &bed.failed();
    case Screen::ConfigFailed:
        return &bed.configFailed();
    }
    Q_UNREACHABLE();
}

void RunTests::printerSays_data()
{
    QTest::addColumn<PrinterScript>("script");
    QTest::addColumn<Screen>("screen");
    QTest::addColumn<bool>("interfaceError");
    QTest::addColumn<int>("capabilityError"); // -1: none
    QTest::addColumn<QString>("ip");

    const auto row = [](const char *name, const PrinterScript &script, Screen screen, bool interfaceError,
                        int capabilityError, const QString &ip = {}) {
        QTest::newRow(name) << script << screen << interfaceError << capabilityError << ip;
    };
    const auto address = u"192.168.1.77"_s;
    row("all well", {}, Screen::Complete, false, -1, address);
    row("capability 0xFFFA", {.capabilityResult = 0xFFFA}, Screen::Complete, false, -1, address);
    row("capability 0xFFFB", {.capabilityResult = 0xFFFB}, Screen::Failed, true, -1);
    row("capability 0xFFFC", {.capabilityResult = 0xFFFC}, Screen::Failed, false, 3);
    row("capability 0xFFFD", {.capabilityResult = 0xFFFD}, Screen::Failed, false, 1);
    row("capability 0xFFFE", {.capabilityResult = 0xFFFE}, Screen::Failed, false, 0);
    row("capability 0", {.capabilityResult = 0}, Screen::Failed, false, 3);
    row("configuration 0", {.configurationResult = 0}, Screen::ConfigFailed, false, -1);
    row("configuration 2", {.configurationResult = 2}, Screen::ConfigFailed, false, -1);
    row("configuration 0xFFFC", {.configurationResult = 0xFFFC}, Screen::ConfigFailed, false, -1);
    row("joins in two minutes", {.joinTime = 120s}, Screen::Complete, false, -1, address);
    row("address after 9 s", {.addressTime = 9s}, Screen::Complete, false, -1, address);
    row("no address for a minute", {.addressTime = 60s}, Screen::Failed, false, -1);
    row("0.0.0.0", {.ipv4 = "0.0.0.0"}, Screen::Complete, false, -1, u"0.0.0.0"_s);
    row("IPv6 only", {.ipv4 = "", .ipv6 = "fe80::1:2"}, Screen::Complete, false, -1, u"fe80::1:2"_s);
    row("no text that is an address", {.ipv4 = "soon"}, Screen::Failed, false, -1);
}

void RunTests::printerSays()
{
    QFETCH(PrinterScript, script);
    QFETCH(Screen, screen);
    QFETCH(int, capabilityError);

    RunBed bed(m_time, script);
    const WTPrinterPtr printer = bed.findPrinter();
    printer->wifiCode = supportUnknown;
    bed.push(printer, networkName, password);
    QCOMPARE(bed.screenAtEnd(), expected(bed, screen));
    QTEST(bed.failed().showInterfaceError(), "interfaceError");
    QCOMPARE(bed.failed().showWiFiCapabilityError(), capabilityError >= 0);
    QCOMPARE(int(bed.failed().wifiCapabilityError()), std::max(capabilityError, 0));
    QTEST(printer->ip, "ip");
    if (bed.sends(Configuration) > 0) {
        QCOMPARE(bed.bus().record().networkName, networkName.toUtf8());
        QCOMPARE(bed.bus().record().password, password.toUtf8());
    }
}

void RunTests::configurationAnswer_data()
{
    QTest::addColumn<int>("errorCode");
    QTest::addColumn<int>("respCode");
    QTest::addColumn<Screen>("screen");
    QTest::addColumn<bool>("interfaceError");
    QTest::addColumn<bool>("upgrading");
    QTest::addColumn<int>("closeState");
    QTest::addColumn<QStringList>("lines");

    using enum Screen;
    const auto row = [](int errorCode, int respCode, Screen screen, bool interfaceError, bool upgrading,
                        WTManager::CloseState closeState, const QStringList &lines) {
        QTest::addRow("%d, 0x%X", errorCode, respCode)
            << errorCode << respCode << screen << interfaceError << upgrading << int(closeState) << lines;
    };
    row(0, 0, ConfigFailed, false, false, WTManager::CloseAsks, {u"info: 🏷"_s, u"info: 🏷 result：4"_s});
    row(0, 0xFFFB, Failed, true, false, WTManager::CloseAsks, {u"info: 🏷 result：6"_s});
    row(0, 0xFFFC, Failed, false, true, WTManager::CloseQuits, {u"info: 🏷 result：7"_s});
    row(0, 0xFFFF, Failed, true, false, WTManager::CloseAsks, {u"info: 🏷 result：6"_s});
    row(1, 0, ConfigFailed, false, false, WTManager::CloseAsks, {u"info: 🏷 result：4"_s});
    row(2, 31, Failed, false, false, WTManager::CloseAsks, {u"info: 🏷 result：0"_s});
}

/// Most of these answers cannot be had from a printer. So the run gets them directly, while its printer is silent.
void RunTests::configurationAnswer()
{
    QFETCH(int, errorCode);
    QFETCH(int, respCode);
    QFETCH(Screen, screen);
    QFETCH(bool, upgrading);
    QFETCH(QStringList, lines);

    LogCollector log;
    RunBed bed(m_time, silentOn(Configuration));
    bed.push(bed.findPrinter(), networkName, password);
    QVERIFY(bed.waitFor([&] { return bed.run().progress() == 5; }));
    bed.run().classifyConfiguration({static_cast<WTPrinterStatus>(errorCode), quint16(respCode)});
    QCOMPARE(bed.screen(), expected(bed, screen));
    QCOMPARE(bed.run().progress(), 100);
    QTEST(bed.failed().showInterfaceError(), "interfaceError");
    QCOMPARE(bed.failed().showWiFiCapabilityError(), upgrading);
    QCOMPARE(bed.failed().wifiCapabilityError(), upgrading ? 2u : 0u);
    QTEST(int(WTManager::shared().closeEnable()), "closeState");
    QCOMPARE(log.firstMissing(lines), QString());
}

void RunTests::sendsTheConfigurationThreeTimesAtMost()
{
    LogCollector log;
    RunBed bed(m_time, silentOn(Configuration));
    bed.push(bed.findPrinter(), networkName, password);
    QVERIFY(bed.waitFor([&] { return bed.run().step() == RunStep::Sending; }));
    for (int retry = 1; retry <= 2; ++retry) {
        bed.run().classifyConfiguration({WTPrinterStatus::CommandMismatch});
        QCOMPARE(bed.installing().retryTime(), retry);
        QCOMPARE(bed.run().step(), RunStep::Sending);
    }
    bed.run().classifyConfiguration({WTPrinterStatus::CommandMismatch});
    QCOMPARE(bed.screen(), &bed.configFailed());
    QCOMPARE(log.firstMissing({u"info: retry time:0"_s, u"info: retry time:1"_s, u"info: retry time:2"_s,
                               u"info: did retry!"_s, u"info: 🏷 result：4"_s}),
             QString());
    const QString send = u"info: send ACL:0xFF80"_s;
    QCOMPARE(log.lines().filter(send).size(), 3);
    // A new run has its retries again.
    bed.configFailed().backAction();
    bed.push(bed.installing().printer(), networkName, password);
    QCOMPARE(bed.installing().retryTime(), 0);
}

void RunTests::saysWhyItEnded_data()
{
    const Rows<PrinterScript, RunCause> row{"script", "cause"};
    row("no reply", silentOn(Capability), {RunStep::Checking, {wtcErrorDomain, 32}});
    row("another command's reply", {.faults = {{.command = Capability, .echo = 0xFF82}}},
        {RunStep::Checking, {printerErrorDomain, 3, u"0xFF81 was answered by a reply to 0xFF82"_s}});
    row("cannot", {.capabilityResult = 0xFFFD},
        {RunStep::Checking, {printerResultDomain, 0xFFFD, u"the printer answered 0xFF81 with the result 0xFFFD"_s}});
    row("refused", {.configurationResult = 2},
        {RunStep::Sending, {printerResultDomain, 2, u"the printer answered 0xFF80 with the result 0x2"_s}});
    row("no address", {.addressTime = 1h},
        {RunStep::WaitingForAddress, {printerErrorDomain, 7, u"the reply to 0xFF0F announces no data"_s}});
}

void RunTests::saysWhyItEnded()
{
    QFETCH(PrinterScript, script);
    QFETCH(RunCause, cause);
    LogCollector log;
    RunBed bed(m_time, script);
    std::optional<RunCause> told;
    connect(&bed.run(), &WTConfigurationRun::ended, this, [&](const RunOutcome &outcome) { told = outcome.cause; });
    const WTPrinterPtr printer = bed.findPrinter();
    printer->wifiCode = supportUnknown;
    bed.push(printer, networkName, password);
    QVERIFY(bed.screenAtEnd());
    QVERIFY(told);
    QCOMPARE(told->step, cause.step);
    QCOMPARE(told->error.domain, cause.error.domain);
    QCOMPARE(told->error.code, cause.error.code);
    QVERIFY2(told->error.message.contains(cause.error.message), qPrintable(told->error.message));
    const QString line = formatText("warning: The run ended while %@: %@ %d, %@", logName(cause.step),
                                    cause.error.domain, cause.error.code, told->error.message);
    QCOMPARE(log.firstMissing({line}), QString());
}

void RunTests::logsEachStepAndNoPassword()
{
    LogCollector log;
    RunBed bed(m_time, {.addressTime = 6s});
    const WTPrinterPtr printer = bed.findPrinter();
    printer->wifiCode = supportUnknown;
    bed.push(printer, networkName, password);
    QCOMPARE(bed.screenAtEnd(), &bed.complete());

    const QStringList expectedLines{
        u"info: go to 👉🏻WTInstallingView"_s,
        u"info: wakeup result:✅ msg:(null)"_s,
        u"info: 检查是否可以配网！！！！！"_s,
        u"info: FF80->errorCode:0, respCode:1"_s,
        u"info: 🏷：0"_s,
        u"error: WTACL_Response_nodataError:acl 获取到的数据为空!!!!!"_s,
        u"info: Retry time 👉🏻 0, Tag 👉🏻 1024"_s,
        u"info: 🏷：1"_s,
        u"info: WTACL_Success:192.168.1.77"_s,
        u"info: ipInfo ipString :192.168.1.77"_s,
        u"info: 🏷"_s,
        u"info: go to 👉🏻WTCompleteView"_s,
    };
    QCOMPARE(log.firstMissing(expectedLines), QString());
    QVERIFY(log.lines().filter(password).isEmpty());
    QVERIFY(log.lines().filter(QString::fromLatin1(password.toUtf8().toHex())).isEmpty());
}

void RunTests::closeStateFollowsTheRun()
{
    RunBed bed(m_time);
    QList<std::pair<RunStep, qint64>> states;
    connect(&bed.run(), &WTConfigurationRun::stepChanged, this, [&](RunStep step) {
        states.append({step, WTManager::shared().closeEnable()});
    });
    const WTPrinterPtr printer = bed.findPrinter();
    printer->wifiCode = supportUnknown;
    bed.push(printer, networkName, password);
    QCOMPARE(bed.screenAtEnd(), &bed.complete());
    using State = std::pair<RunStep, qint64>;
    const QList<State> expectedStates{
        {RunStep::Waking, WTManager::CloseAsks},     {RunStep::Checking, WTManager::CloseIgnored},
        {RunStep::Sending, WTManager::CloseIgnored}, {RunStep::WaitingForAddress, WTManager::CloseIgnored},
        {RunStep::Ended, WTManager::CloseQuits},
    };
    QCOMPARE(states, expectedStates);
}

void RunTests::answersOfAnEarlierAppearanceAreDropped()
{
    PrinterScript script;
    script.faults.push_back({.command = WakeUp, .occurrence = 1, .delay = 3s});
    RunBed bed(m_time, script);
    bed.push(bed.findPrinter(), networkName, password);
    QVERIFY(bed.waitFor([&] { return bed.sends(WakeUp) == 1; }));
    bed.installing().viewDidApear();
    QCOMPARE(bed.screenAtEnd(), &bed.complete());
    QCOMPARE(bed.sends(WakeUp), 2);
    QCOMPARE(bed.sends(Configuration), 1);
    QCOMPARE(bed.sends(Address), 1);
}

void RunTests::newRunAfterReplug()
{
    RunBed bed(m_time, {.configurationResult = 2});
    const WTPrinterPtr printer = bed.findPrinter();
    bed.push(printer, networkName, password);
    QCOMPARE(bed.screenAtEnd(), &bed.configFailed());

    bed.bus().unplug();
    bed.bus().setScript({});
    bed.bus().plug();
    bed.configFailed().backAction();
    QCOMPARE(bed.screen(), &bed.entry());
    bed.push(printer, networkName, u"another one"_s);
    QCOMPARE(bed.screenAtEnd(), &bed.complete());
    QCOMPARE(bed.bus().record().password, "another one");
    QCOMPARE(printer->ip, u"192.168.1.77"_s);
}

void RunTests::hostThatCannotPollEndsWithoutAddress()
{
    RunBed bed(m_time);
    WTConfigurationRun run(m_time, false);
    const WTPrinterPtr printer = bed.findPrinter();
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = networkName;
    run.setPrinter(printer);
    run.setWifi(wifi);
    std::optional<RunOutcome> outcome;
    connect(&run, &WTConfigurationRun::ended, this, [&](const RunOutcome &ended) { outcome = ended; });
    run.start();
    QVERIFY(bed.waitFor([&] { return outcome.has_value(); }));
    QVERIFY(*outcome == RunOutcome{RunOutcome::Screen::Complete});
    QCOMPARE(bed.sends(Address), 0);
    QCOMPARE(printer->ip, QString());
}

QTEST_MAIN(RunTests)
#include "RunTests.moc"
