#include "LogCollector.h"
#include "Rows.h"
#include "RunBed.h"
#include "TextFormat.h"
#include "WTCUSBPrinter.h"
#include "WTManager.h"

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

/// The configuration run over real libusb, in virtual time.
class RunTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printerSays()
    {
        using enum Screen;
        const QString address = u"192.168.1.77"_s;
        // The reason of a capability error, -1 for none.
        eachRow(
            {
                {"all well", {}, Complete, false, -1, address},
                {"capability 0xFFFB", {.capabilityResult = 0xFFFB}, Failed, true, -1, {}},
                {"capability 0xFFFD", {.capabilityResult = 0xFFFD}, Failed, false, 1, {}},
                {"capability 0xFFFE", {.capabilityResult = 0xFFFE}, Failed, false, 0, {}},
                {"capability 0", {.capabilityResult = 0}, Failed, false, 3, {}},
                {"configuration 0", {.configurationResult = 0}, ConfigFailed, false, -1, {}},
                {"address after 9 s", {.addressTime = 9s}, Complete, false, -1, address},
                {"no address for a minute", {.addressTime = 60s}, Failed, false, -1, {}},
                {"IPv6 only", {.ipv4 = "", .ipv6 = "fe80::1:2"}, Complete, false, -1, u"fe80::1:2"_s},
                {"no text that is an address", {.ipv4 = "soon"}, Failed, false, -1, {}},
            },
            [&](const PrinterScript &script, Screen screen, bool interfaceError, int capabilityError,
                const QString &ip) {
                RunBed bed(script);
                const WTPrinterPtr printer = bed.findPrinter();
                printer->wifiCode = supportUnknown;
                bed.push(printer, networkName, password);
                QCOMPARE(bed.screenAtEnd(), expected(bed, screen));
                // A run that has ended waits for no step any more.
                bed.time().advance(300s);
                QCoreApplication::processEvents();
                QCOMPARE(bed.failed().showInterfaceError(), interfaceError);
                QCOMPARE(bed.failed().showWiFiCapabilityError(), capabilityError >= 0);
                QCOMPARE(int(bed.failed().wifiCapabilityError()), std::max(capabilityError, 0));
                QCOMPARE(printer->ip, ip);
                // The window closes without a question behind a success and where nothing was sent.
                const bool quits = screen == Screen::Complete || bed.sends(Configuration) == 0;
                QCOMPARE(WTManager::shared().closeEnable(),
                         qint64(quits ? WTManager::CloseQuits : WTManager::CloseAsks));
                if (bed.sends(Configuration) > 0) {
                    QCOMPARE(bed.bus().record().networkName, networkName.toUtf8());
                    QCOMPARE(bed.bus().record().password, password.toUtf8());
                }
            });
    }

    /// Most of these answers cannot be had from a printer. So the run gets them directly, while its printer is silent.
    void configurationAnswer()
    {
        using enum Screen;
        using enum WTManager::CloseState;
        using Status = WTPrinterStatus;
        eachRow(
            {
                {"nothing", Status::Success, 0, ConfigFailed, false, CloseAsks, 4},
                {"interface fault", Status::Success, 0xFFFB, Failed, true, CloseAsks, 6},
                {"upgrading", Status::Success, 0xFFFC, Failed, false, CloseQuits, 7},
                {"another interface fault", Status::Success, 0xFFFF, Failed, true, CloseAsks, 6},
                {"no header", Status::NoHeader, 0, ConfigFailed, false, CloseAsks, 4},
                {"unreachable", Status::LibraryError31, 31, Failed, false, CloseAsks, 0},
            },
            [&](Status status, quint16 result, Screen screen, bool interfaceError, qint64 closeState, int endCode) {
                const bool upgrading = endCode == 7;
                LogCollector log;
                RunBed bed(silentOn(Configuration));
                bed.push(bed.findPrinter(), networkName, password);
                QVERIFY(bed.waitFor([&] { return bed.run().progress() == 5; }));
                bed.run().classifyConfiguration({status, result});
                QCOMPARE(bed.current(), expected(bed, screen));
                QCOMPARE(bed.run().progress(), 100);
                QCOMPARE(bed.failed().showInterfaceError(), interfaceError);
                QCOMPARE(bed.failed().showWiFiCapabilityError(), upgrading);
                QCOMPARE(bed.failed().wifiCapabilityError(), upgrading ? 2u : 0u);
                QCOMPARE(WTManager::shared().closeEnable(), closeState);
                QVERIFY(log.lines().contains(u"info: 🏷 result：%1"_s.arg(endCode)));
            });
    }

    void sendsTheConfigurationThreeTimesAtMost()
    {
        LogCollector log;
        RunBed bed(silentOn(Configuration));
        bed.push(bed.findPrinter(), networkName, password);
        QVERIFY(bed.waitFor([&] { return bed.run().step() == RunStep::Sending; }));
        for (int retry = 1; retry <= 2; ++retry) {
            bed.run().classifyConfiguration({WTPrinterStatus::CommandMismatch});
            QCOMPARE(bed.installing().retryTime(), retry);
            QCOMPARE(bed.run().step(), RunStep::Sending);
        }
        bed.run().classifyConfiguration({WTPrinterStatus::CommandMismatch});
        QCOMPARE(bed.current(), &bed.configFailed());
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

    void saysWhyItEnded()
    {
        eachRow(
            {
                {"another command's reply",
                 {.faults = {{.command = Capability, .echo = 0xFF82}}},
                 {RunStep::Checking, {printerErrorDomain, 3, u"0xFF81 was answered by a reply to 0xFF82"_s}}},
                {"cannot",
                 {.capabilityResult = 0xFFFD},
                 {RunStep::Checking,
                  {printerResultDomain, 0xFFFD, u"the printer answered 0xFF81 with the result 0xFFFD"_s}}},
                {"refused",
                 {.configurationResult = 2},
                 {RunStep::Sending, {printerResultDomain, 2, u"the printer answered 0xFF80 with the result 0x2"_s}}},
                {"no address",
                 {.addressTime = 1h},
                 {RunStep::WaitingForAddress, {printerErrorDomain, 7, u"the reply to 0xFF0F announces no data"_s}}},
            },
            [&](const PrinterScript &script, const RunCause &cause) {
                LogCollector log;
                RunBed bed(script);
                std::optional<RunCause> told;
                connect(&bed.run(), &WTConfigurationRun::ended, this,
                        [&](const RunOutcome &outcome) { told = outcome.cause; });
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
            });
    }

    void logsEachStepAndNoPassword()
    {
        LogCollector log;
        RunBed bed({.addressTime = 6s});
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

    void closeStateFollowsTheRun()
    {
        RunBed bed;
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

    void answersOfAnEarlierAppearanceAreDropped()
    {
        PrinterScript script;
        script.faults.push_back({.command = WakeUp, .occurrence = 1, .delay = 3s});
        RunBed bed(script);
        bed.push(bed.findPrinter(), networkName, password);
        QVERIFY(bed.waitFor([&] { return bed.sends(WakeUp) == 1; }));
        bed.installing().viewDidApear();
        QCOMPARE(bed.screenAtEnd(), &bed.complete());
        QCOMPARE(bed.sends(WakeUp), 2);
        QCOMPARE(bed.sends(Configuration), 1);
        QCOMPARE(bed.sends(Address), 1);
    }

    void hostThatCannotPollEndsWithoutAddress()
    {
        RunBed bed;
        WTConfigurationRun run(bed.time(), false);
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

private:
    WTView *expected(RunBed &bed, Screen screen)
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
};

QTEST_MAIN(RunTests)
#include "RunTests.moc"
