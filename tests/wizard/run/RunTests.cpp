#include "InfoList.h"
#include "Localized.h"
#include "LogCollector.h"
#include "RunBed.h"
#include "VirtualTime.h"
#include "WTManager.h"
#include "WTProgressView.h"

#include <QLabel>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

enum Command : quint16 {
    WakeUp = 0xFF21,
    Capability = 0xFF81,
    Configuration = 0xFF80,
    Address = 0xFF0F,
};

enum class Screen { Complete, Failed, ConfigFailed };

const auto networkName = u"Home 网络"_s;
const auto password = u"correct horse"_s;

PrinterScript silentOn(Command command)
{
    return {.faults = {{.command = command, .silent = true}}};
}

/// The first of `expected` that `lines` do not hold behind the one before it; empty when they hold all.
QString firstMissing(const QStringList &lines, const QStringList &expected)
{
    qsizetype from = 0;
    for (const QString &line : expected) {
        const qsizetype found = lines.indexOf(line, from);
        if (found < 0)
            return line;
        from = found + 1;
    }
    return {};
}

/// A printer whose every run is asked all four questions.
constexpr qint64 supportUnknown = -1;

} // namespace

Q_DECLARE_METATYPE(PrinterScript)

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
    void logsEachStepAndNoPassword();
    void asksSevenTimesTwoSecondsApart();
    void countsProgressFromTheFirstSend();
    void secondProgressTimerSurvivesTheEnd();
    void saysSoWhereARunWaitsForEver_data();
    void saysSoWhereARunWaitsForEver();
    void closeStateFollowsTheRun();
    void answersOfAnEarlierAppearanceAreDropped();
    void newRunAfterReplug();
    void hostThatCannotPollEndsWithoutAddress();

private:
    WTView *expected(RunBed &bed, Screen screen);
    RunBed::Wait virtualWait();

    VirtualTime m_time;
};

void RunTests::initTestCase()
{
    InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
}

RunBed::Wait RunTests::virtualWait()
{
    return [this](const UsbfsBed &bus, const std::function<bool()> &done) {
        return m_time.runUntil(done, [&bus] { return bus.busy(); });
    };
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

    RunBed bed(m_time, virtualWait(), script);
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

/// Most of these answers no printer command produces, so they are given to a run whose printer keeps silent.
void RunTests::configurationAnswer()
{
    QFETCH(int, errorCode);
    QFETCH(int, respCode);
    QFETCH(Screen, screen);
    QFETCH(bool, upgrading);
    QFETCH(QStringList, lines);

    LogCollector log;
    RunBed bed(m_time, virtualWait(), silentOn(Configuration));
    bed.push(bed.findPrinter(), networkName, password);
    QVERIFY(bed.waitFor([&] { return bed.run().progress() == 5; }));
    bed.run().classifyConfiguration(errorCode, quint16(respCode));
    QCOMPARE(bed.screen(), expected(bed, screen));
    QCOMPARE(bed.run().progress(), 100);
    QTEST(bed.failed().showInterfaceError(), "interfaceError");
    QCOMPARE(bed.failed().showWiFiCapabilityError(), upgrading);
    QCOMPARE(bed.failed().wifiCapabilityError(), upgrading ? 2u : 0u);
    QTEST(int(WTManager::shared().closeEnable()), "closeState");
    QCOMPARE(firstMissing(log.lines(), lines), QString());
}

void RunTests::sendsTheConfigurationThreeTimesAtMost()
{
    LogCollector log;
    RunBed bed(m_time, virtualWait(), silentOn(Configuration));
    bed.push(bed.findPrinter(), networkName, password);
    QVERIFY(bed.waitFor([&] { return bed.run().step() == RunStep::Sending; }));
    for (int retry = 1; retry <= 2; ++retry) {
        bed.run().classifyConfiguration(3, 0);
        QCOMPARE(bed.installing().retryTime(), retry);
        QCOMPARE(bed.run().step(), RunStep::Sending);
    }
    bed.run().classifyConfiguration(3, 0);
    QCOMPARE(bed.screen(), &bed.configFailed());
    QCOMPARE(firstMissing(log.lines(), {u"info: retry time:0"_s, u"info: retry time:1"_s, u"info: retry time:2"_s,
                                        u"info: did retry!"_s, u"info: 🏷 result：4"_s}),
             QString());
    const QString send = u"info: send ACL:0xFF80"_s;
    QCOMPARE(log.lines().filter(send).size(), 3);
    // A new run has its retries again.
    bed.configFailed().backAction();
    bed.push(bed.installing().printer(), networkName, password);
    QCOMPARE(bed.installing().retryTime(), 0);
}

void RunTests::logsEachStepAndNoPassword()
{
    LogCollector log;
    RunBed bed(m_time, virtualWait(), {.addressTime = 6s});
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
    QCOMPARE(firstMissing(log.lines(), expectedLines), QString());
    QVERIFY(log.lines().filter(password).isEmpty());
    QVERIFY(log.lines().filter(QString::fromLatin1(password.toUtf8().toHex())).isEmpty());
}

void RunTests::asksSevenTimesTwoSecondsApart()
{
    LogCollector log;
    RunBed bed(m_time, virtualWait(), {.addressTime = 3600s});
    const WTPrinterPtr printer = bed.findPrinter();
    QCOMPARE(printer->wifiCode, 1);
    bed.push(printer, networkName, password);
    QVERIFY(bed.waitFor([&] { return bed.sends(Configuration) == 1; }));
    const TimePort::Instant sent = m_time.now();
    QCOMPARE(bed.screenAtEnd(), &bed.failed());

    // Five seconds of the command's own pause, and one pause after each of seven failed answers.
    const auto waited = m_time.now() - sent;
    QVERIFY2(waited >= 19s && waited < 20s, QByteArray::number(qint64(waited / 1ms)));
    QCOMPARE(bed.bus().record().commands(), (std::vector<quint16>{WakeUp, Configuration, Address, Address, Address,
                                                                  Address, Address, Address, Address}));
    QVERIFY(!bed.failed().showInterfaceError());
    QCOMPARE(
        firstMissing(log.lines(), {u"info: Support Wi-Fi Config"_s, u"info: 🏷：7"_s, u"error: Too many times"_s,
                                   u"info: 🏷 result：5"_s, u"info: go to 👉🏻WTFailedView"_s}),
        QString());
}

void RunTests::countsProgressFromTheFirstSend()
{
    RunBed bed(m_time, virtualWait(), {.joinTime = 60s});
    std::vector<std::pair<TimePort::Instant, int>> shown;
    connect(&bed.run(), &WTConfigurationRun::progressChanged, this,
            [&](int progress) { shown.emplace_back(m_time.now(), progress); });
    const auto *bar = bed.installing().findChild<WTProgressView *>(u"progressView"_s);
    bed.push(bed.findPrinter(), networkName, password);
    QVERIFY(bed.waitFor([&] { return bar->progress() == 100; }));

    const auto first = std::ranges::find_if(shown, [](const auto &entry) { return entry.second == 1; }) - 1;
    QCOMPARE(first->second, 0);
    QCOMPARE(shown.end() - first, 101);
    for (int progress = 0; progress <= 100; ++progress) {
        QCOMPARE(first[progress].second, progress);
        QCOMPARE((first[progress].first - first->first) / 1ms, progress * 200);
    }
    QCOMPARE(bed.screen(), &bed.installing());
    QCOMPARE(bed.screenAtEnd(), &bed.complete());
}

void RunTests::secondProgressTimerSurvivesTheEnd()
{
    RunBed bed(m_time, virtualWait(), silentOn(Configuration));
    bed.push(bed.findPrinter(), networkName, password);
    QVERIFY(bed.waitFor([&] { return bed.run().progress() == 10; }));
    bed.installing().confingWiFiStart();
    QVERIFY(bed.waitFor([&] { return bed.run().progress() == 20; }));
    bed.installing().closeTimer(0);
    QCOMPARE(bed.screen(), &bed.failed());
    QCOMPARE(bed.run().progress(), 100);
    // The first timer counts on as if nothing had happened, up to its own end.
    QVERIFY(bed.waitFor([&] { return bed.run().progress() == 30; }));
    QVERIFY(bed.waitFor([&] { return bed.run().progress() == 100; }));
    bed.installing().setProgress(0);
    const TimePort::Instant full = m_time.now();
    QVERIFY(bed.waitFor([&] { return m_time.now() > full + 10s; }));
    QCOMPARE(bed.run().progress(), 0);
}

void RunTests::saysSoWhereARunWaitsForEver_data()
{
    QTest::addColumn<int>("wifiCode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("addressData");
    QTest::addColumn<std::vector<quint16>>("commands");
    QTest::addColumn<QString>("step");

    using Commands = std::vector<quint16>;
    QTest::newRow("support 0") << 0 << networkName << QByteArray() << Commands{WakeUp}
                               << u"checking the printer's Wi-Fi capability"_s;
    QTest::newRow("configuration never sent")
        << 1 << u"  "_s << QByteArray() << Commands{WakeUp} << u"sending the configuration"_s;
    QTest::newRow("address data too short")
        << 1 << networkName << QByteArray("192.168.1.7") << Commands{WakeUp, Configuration, Address}
        << u"waiting for the printer's address"_s;
}

void RunTests::saysSoWhereARunWaitsForEver()
{
    QFETCH(int, wifiCode);
    QFETCH(QString, name);
    QFETCH(QByteArray, addressData);
    QFETCH(QString, step);

    PrinterScript script;
    if (!addressData.isEmpty())
        script.faults.push_back({.command = Address, .data = addressData});
    LogCollector log;
    RunBed bed(m_time, virtualWait(), script);
    const WTPrinterPtr printer = bed.findPrinter();
    printer->wifiCode = wifiCode;
    const auto *line = bed.installing().findChild<QLabel *>(u"progressLabel"_s);
    TimePort::Instant lastStep;
    connect(&bed.run(), &WTConfigurationRun::stepChanged, this, [&] { lastStep = m_time.now(); });
    bed.push(printer, name, password);

    QVERIFY(bed.waitFor([&] { return WTManager::shared().closeEnable() == WTManager::CloseIgnored; }));
    QVERIFY(bed.waitFor([&] { return WTManager::shared().closeEnable() == WTManager::CloseAsks; }));
    QCOMPARE((m_time.now() - lastStep) / 1ms, 240'000);
    QCOMPARE(line->text(), localized(u"打印机没有应答，您现在可以关闭此窗口。"_s));
    QVERIFY(log.lines().contains(u"error: No step for 240 seconds: "_s + step));
    m_time.advance(600s);
    QCoreApplication::processEvents();
    QCOMPARE(bed.screen(), &bed.installing());
    QTEST(bed.bus().record().commands(), "commands");
}

void RunTests::closeStateFollowsTheRun()
{
    RunBed bed(m_time, virtualWait());
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
    RunBed bed(m_time, virtualWait(), script);
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
    RunBed bed(m_time, virtualWait(), {.configurationResult = 2});
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
    RunBed bed(m_time, virtualWait());
    WTConfigurationRun run(m_time, false);
    const WTPrinterPtr printer = bed.findPrinter();
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = networkName;
    run.setPrinter(printer);
    run.setWifi(wifi);
    std::optional<RunOutcome> outcome;
    connect(&run, &WTConfigurationRun::ended, this, [&](const RunOutcome &ended) { outcome = ended; });
    run.viewDidApear();
    QVERIFY(bed.waitFor([&] { return outcome.has_value(); }));
    QVERIFY(*outcome == RunOutcome{RunOutcome::Screen::Complete});
    QCOMPARE(bed.sends(Address), 0);
    QCOMPARE(printer->ip, QString());
}

QTEST_MAIN(RunTests)
#include "RunTests.moc"
