#include "AclReplyHeader.h"
#include "LogCollector.h"
#include "PrinterBed.h"
#include "Rows.h"
#include "TextFormat.h"
#include "WTManager.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
/// What keeps the program from the printer before the operation begins.
using Obstacle = std::function<void(UsbfsBed &)>;

/// The printer commands through the real library and real libusb, against the emulated printer.
class PrinterCommandTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_bed.discover());
        QCOMPARE(m_bed.uri(), u"usb://Quillmark/QZ100?serial=QM0001"_s);
    }

    void init() { m_bed.reset(); }

    void answersWhateverThePrinterDoes()
    {
        const Obstacle none = [](UsbfsBed &) {};
        const Obstacle held = [](UsbfsBed &bed) { bed.hold(); };
        const Obstacle denied = [](UsbfsBed &bed) { bed.deny(); };
        const Obstacle absent = [](UsbfsBed &bed) { bed.unplug(); };
        const QString awake = u"1, no message"_s;
        const QString failed = u"1, 0x0"_s;
        const QString address = u"0, 192.168.1.77"_s;
        const QString noData = u"7, acl 获取到的数据为空!!!!!"_s;
        const QStringList unanswered{awake, failed, failed, noData, failed};
        const QStringList lost{awake, failed, u"2, 0x1f"_s, noData, failed};
        const QStringList refused{awake, u"0, 0xfffb"_s, u"1, 0xfffb"_s, address, u"0, 0xfffb"_s};
        eachRow(
            {
                {"sound", {}, none, {awake, u"0, 0x1"_s, u"0, 0x1"_s, address, u"0, 0x0"_s}},
                {"another result", {.result = 0xFFFB}, none, refused},
                {"wrong echo", {.echo = 0xFF22}, none, unanswered},
                {"silent", {.silent = true}, none, unanswered},
                {"short header", {.cutAt = 10}, none, unanswered},
                {"unplugged in the reply", {.unplugIn = 8}, none, lost},
                {"held by another", {}, held, lost},
                {"not on the bus", {}, absent, lost},
            },
            [&](const PrinterFault &fault, const Obstacle &obstacle, const QStringList &answers) {
                QStringList given;
                for (const Operation operation : {Operation::WakeUp, Operation::Capability, Operation::Configuration,
                                                  Operation::Address, Operation::InformationPage}) {
                    m_bed.reset(scriptWith(operation, fault));
                    obstacle(m_bed.bus);
                    const LogCollector log;
                    const Answer answer = m_bed.perform(operation);
                    given << answer.text;
                    QCOMPARE(answer.calls, 1);
                    QVERIFY(!tellsSecret(log.lines()));
                    QCOMPARE(answer.thread == thread(), operation != Operation::Configuration);
                }
                QCOMPARE(given, answers);
            });
    }

    void readsAddressReplies()
    {
        const auto padded = [](int size) { return "10.0.0.7"_ba.leftJustified(size, '\0'); };
        const QByteArray noAddress(176, 'x');
        const QString noData = u"7, acl 获取到的数据为空!!!!!"_s;
        const QString tooShort = u"5, acl 获取数据失败，失败原因：数据长度不够！"_s;
        const QStringList noDataLine{u"error: Null recv data"_s};
        const QStringList noAddressLine{u"error: 🤢🤢🤢"_s};
        eachRow(
            {
                {"no data announced", {.data = QByteArray{}}, noData, noDataLine},
                {"15 bytes", {.data = padded(15)}, tooShort, {u"error: data.length < 16"_s}},
                {"16 bytes", {.data = padded(16)}, u"0, 10.0.0.7"_s, {}},
                {"the two length bytes are added", {.lengthField = 0x0110, .data = padded(17)}, u"0, 10.0.0.7"_s, {}},
                {"no address", {.data = noAddress}, u"6, "_s, noAddressLine},
                {"510 bytes", {.lengthField = 0xFFFF, .data = QByteArray(510, '\xFF')}, u"6, "_s, noAddressLine},
            },
            [&](const PrinterFault &fault, const QString &text, const QStringList &errors) {
                m_bed.reset(scriptWith(Operation::Address, fault));
                const LogCollector log;
                const Answer answer = m_bed.perform(Operation::Address);
                QCOMPARE(answer.text, text);
                QCOMPARE(answer.calls, 1);
                QCOMPARE(log.lines().filter(u"error: "_s), errors);
            });
    }

    void waitsAsLongAsItsCommandMayTake()
    {
        eachRow(
            {
                {"wake-up", Operation::WakeUp, 6},
                {"configuration", Operation::Configuration, 180},
                {"address", Operation::Address, 60},
            },
            [&](Operation operation, int seconds) {
                m_bed.reset(scriptWith(operation, {.silent = true}));
                const auto before = m_bed.time.now();
                QCOMPARE(m_bed.perform(operation).calls, 1);
                QCOMPARE(static_cast<int>(std::chrono::round<std::chrono::seconds>(m_bed.time.now() - before).count()),
                         seconds);
            });
    }

    void answersASuccessfulConfigurationAfterAPause()
    {
        PrinterScript slowToJoin;
        slowToJoin.joinTime = 20s;
        m_bed.reset(slowToJoin);
        const auto before = m_bed.time.now();
        QCOMPARE(m_bed.perform(Operation::Configuration).text, u"0, 0x1"_s);
        const auto duration = m_bed.time.now() - before;
        QVERIFY(duration >= 25s && duration < 26s);
        const PrinterRecord told = m_bed.bus.record();
        QCOMPARE(told.networkName, networkName.toUtf8());
        QCOMPARE(told.password, networkPassword.toUtf8());
    }

    void logsTheExchange()
    {
        const auto reply = [](const QString &command, const char *rest = "000000000000000000000000") {
            return *describeReplyHeader(QByteArray::fromHex("00ac" + command.toLatin1() + rest));
        };
        const auto sent = [](const QString &command, int size = 59) {
            return u"info: send ACL:0x%1, uri:URI, data:{length = %2, "_s.arg(command).arg(size) +
                   u"bytes = 0x1b252d31323334355840504a4c20454e ... 252d313233343558}"_s;
        };
        const char *success = "000100000000000000000000";
        eachRow(
            {
                {"capability, another command",
                 Operation::Capability,
                 {.echo = 0xFF82},
                 {sent(u"FF81"_s), u"info: 返回 ACL:0xFF81, headData:"_s + reply(u"FF82"_s, success),
                  u"warning: CMD not matched! msg:acl 失败，失败原因：cmd not matched! send:0xFF81, recv:0xFF82"_s,
                  u"info: send_cmd:0xFF81 header data:(null)"_s, u"error: no header data!"_s}},
                {"configuration",
                 Operation::Configuration,
                 {},
                 {sent(u"FF80"_s, 267), u"info: recv ACL:0xFF80, header:"_s + reply(u"FF80"_s, success)}},
                {"address",
                 Operation::Address,
                 {.data = "10.0.0.7"_ba.leftJustified(16, '\0')},
                 {sent(u"FF0F"_s), u"info: recv ACL:0xFF0F, header:"_s + reply(u"FF0F"_s, "000100100000000000000000"),
                  u"info: 0xFF0F:1"_s, u"info: IP:10.0.0.7"_s, u"info: IPv4:10.0.0.7, IPv6:, unstatus:"_s}},
            },
            [&](Operation operation, const PrinterFault &fault, QStringList lines) {
                m_bed.reset(scriptWith(operation, fault));
                const LogCollector log;
                QCOMPARE(m_bed.perform(operation).calls, 1);
                QCOMPARE(log.lines(), lines.replaceInStrings(u"URI"_s, m_bed.uri()));
            });
    }

    void findsPrintersOfBothVendorsUntilTheSearchEnds()
    {
        auto &manager = WTManager::shared();
        const auto lists = [&](qsizetype printers) {
            return m_bed.runUntil([&] { return manager.printerList().count() == printers; });
        };
        ModelIdentity sister;
        sister.vendorID = 0x6A1C;
        const int second = m_bed.bus.addPrinter(PrinterModel(sister));
        m_bed.bus.unplug();
        manager.wt_startDiscoverPrinter();
        QVERIFY(lists(0));
        m_bed.bus.plug(second);
        QVERIFY(lists(1));
        m_bed.bus.plug();
        QVERIFY(lists(2));
        QCOMPARE(manager.printerList().objectAtIndex(0)->usbObj->VID, 0x6A1B);
        QCOMPARE(manager.printerList().objectAtIndex(1)->usbObj->VID, 0x6A1C);
        manager.wt_stopDiscoverPrinter();
        const LogCollector log;
        m_bed.bus.unplug(second);
        m_bed.time.advance(1s);
        manager.wt_startDiscoverPrinter();
        QVERIFY(lists(1));
        manager.wt_stopDiscoverPrinter();
        // Only the search that was started anew has told of the change.
        QCOMPARE(log.lines().filter(u"USB Printers count"_s).size(), 1);
    }

    void refusesAWakeUpWithoutUriAtOnce()
    {
        const LogCollector log;
        const Answer answer = start(Operation::WakeUp, u" "_s)->soFar();
        QCOMPARE(answer.calls, 1);
        QCOMPARE(answer.text, u"0, invalid URI!"_s);
        QCOMPARE(log.lines(), QStringList{u"error: invalid URI!"_s});
    }

    void sendsNoConfigurationThatDoesNotFit()
    {
        const LogCollector log;
        const int framesBefore = m_bed.bus.record().count(0xFF80);
        const QString longPassword = networkPassword + networkPassword;
        PendingAnswer nameless, tooLong;
        WTManager::wifiConfigForPrinter(m_bed.uri(), 1, u" \n"_s, networkPassword,
                                        [&](const ResultAnswer &answer) { nameless.give(answer); });
        WTManager::wifiConfigForPrinter(m_bed.uri(), 1, networkName, longPassword,
                                        [&](const ResultAnswer &answer) { tooLong.give(answer); });
        QVERIFY(m_bed.runUntil([&] { return tooLong.soFar().calls > 0; }));

        QCOMPARE(tooLong.soFar().text, u"1, 0x0"_s);
        QVERIFY(tooLong.soFar().thread != thread());
        QCOMPARE(nameless.soFar().calls, 0);
        QCOMPARE(m_bed.bus.record().count(0xFF80), framesBefore);
        const QStringList lines = log.lines();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines.first(), u"error: dirty data👉🏻ssid: \\u000A"_s);
        QVERIFY(lines.last().startsWith("error: "_L1));
        QVERIFY(!tellsSecret(lines));
    }

private:
    PrinterBed m_bed;
};

QTEST_GUILESS_MAIN(PrinterCommandTests)
#include "PrinterCommandTests.moc"
