#include "LogCollector.h"
#include "PrinterBed.h"
#include "PrinterOperation.h"
#include "Rows.h"
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
    void initTestCase();
    void init() { m_bed.reset(); }
    void answersWhateverThePrinterDoes_data();
    void answersWhateverThePrinterDoes();
    void readsAddressReplies_data();
    void readsAddressReplies();
    void waitsAsLongAsItsCommandMayTake_data();
    void waitsAsLongAsItsCommandMayTake();
    void answersASuccessfulConfigurationAfterAPause();
    void findsPrintersOfBothVendorsUntilTheSearchEnds();

private:
    PrinterBed m_bed;
};

void PrinterCommandTests::initTestCase()
{
    QVERIFY(m_bed.discover());
    QCOMPARE(m_bed.uri(), u"usb://Quillmark/QZ100?serial=QM0001"_s);
}

void PrinterCommandTests::answersWhateverThePrinterDoes_data()
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
    const Rows<PrinterFault, Obstacle, QStringList> row{"fault", "obstacle", "answers"};
    row("sound", {}, none, {awake, u"0, 0x1"_s, u"0, 0x1"_s, address, u"0, 0x0"_s});
    row("another result", {.result = 0xFFFB}, none, refused);
    row("wrong echo", {.echo = 0xFF22}, none, unanswered);
    row("silent", {.silent = true}, none, unanswered);
    row("short header", {.cutAt = 10}, none, unanswered);
    row("stalls the frame", {.stallOut = true}, none, unanswered);
    row("stalls the reply", {.stallIn = true}, none, unanswered);
    row("unplugged in the frame", {.unplugOut = 30}, none, lost);
    row("unplugged in the reply", {.unplugIn = 8}, none, lost);
    row("held by another", {}, held, lost);
    row("not permitted", {}, denied, lost);
    row("not on the bus", {}, absent, lost);
}

void PrinterCommandTests::answersWhateverThePrinterDoes()
{
    QFETCH(PrinterFault, fault);
    QFETCH(Obstacle, obstacle);
    QStringList answers;
    for (const Operation operation : {Operation::WakeUp, Operation::Capability, Operation::Configuration,
                                      Operation::Address, Operation::InformationPage}) {
        m_bed.reset(scriptWith(operation, fault));
        obstacle(m_bed.bus);
        const LogCollector log;
        const auto answer = m_bed.perform(operation);
        answers << answer->text();
        QCOMPARE(answer->calls(), 1);
        QVERIFY(!tellsSecret(log.lines()));
        QCOMPARE(answer->wasGivenOn(thread()), operation != Operation::Configuration);
    }
    QTEST(answers, "answers");
}

void PrinterCommandTests::readsAddressReplies_data()
{
    const auto padded = [](int size) { return "10.0.0.7"_ba.leftJustified(size, '\0'); };
    const QByteArray noAddress(176, 'x');
    const QString noData = u"7, acl 获取到的数据为空!!!!!"_s;
    const QString tooShort = u"5, acl 获取数据失败，失败原因：数据长度不够！"_s;
    const QStringList noDataLine{u"error: Null recv data"_s};
    const QStringList noAddressLine{u"error: 🤢🤢🤢"_s};
    const Rows<PrinterFault, QString, QStringList> row{"fault", "answer", "errors"};
    row("zero result, data announced", {.result = 0, .data = padded(176)}, noData, noDataLine);
    row("no data announced", {.data = QByteArray{}}, noData, noDataLine);
    row("announced data never comes", {.noData = true}, noData, noDataLine);
    row("15 bytes", {.data = padded(15)}, tooShort, {u"error: data.length < 16"_s});
    row("16 bytes", {.data = padded(16)}, u"0, 10.0.0.7"_s, {});
    row("the two length bytes are added", {.lengthField = 0x0110, .data = padded(17)}, u"0, 10.0.0.7"_s, {});
    row("no address", {.data = noAddress}, u"6, "_s, noAddressLine);
    row("510 bytes", {.lengthField = 0xFFFF, .data = QByteArray(510, '\xFF')}, u"6, "_s, noAddressLine);
}

void PrinterCommandTests::readsAddressReplies()
{
    QFETCH(PrinterFault, fault);
    m_bed.reset(scriptWith(Operation::Address, fault));
    const LogCollector log;
    const auto answer = m_bed.perform(Operation::Address);
    QTEST(answer->text(), "answer");
    QCOMPARE(answer->calls(), 1);
    QTEST(log.lines().filter(u"error: "_s), "errors");
}

void PrinterCommandTests::waitsAsLongAsItsCommandMayTake_data()
{
    const Rows<Operation, int> row{"operation", "seconds"};
    row("wake-up", Operation::WakeUp, 6);
    row("capability", Operation::Capability, 60);
    row("configuration", Operation::Configuration, 180);
    row("address", Operation::Address, 60);
    row("information page", Operation::InformationPage, 60);
}

void PrinterCommandTests::waitsAsLongAsItsCommandMayTake()
{
    QFETCH(Operation, operation);
    m_bed.reset(scriptWith(operation, {.silent = true}));
    const auto before = m_bed.time.now();
    QCOMPARE(m_bed.perform(operation)->calls(), 1);
    QTEST(static_cast<int>(std::chrono::round<std::chrono::seconds>(m_bed.time.now() - before).count()), "seconds");
}

void PrinterCommandTests::answersASuccessfulConfigurationAfterAPause()
{
    PrinterScript slowToJoin;
    slowToJoin.joinTime = 20s;
    m_bed.reset(slowToJoin);
    const auto before = m_bed.time.now();
    QCOMPARE(m_bed.perform(Operation::Configuration)->text(), u"0, 0x1"_s);
    const auto duration = m_bed.time.now() - before;
    QVERIFY(duration >= 25s && duration < 26s);
    const PrinterRecord told = m_bed.bus.record();
    QCOMPARE(told.networkName, networkName.toUtf8());
    QCOMPARE(told.password, networkPassword.toUtf8());
}

void PrinterCommandTests::findsPrintersOfBothVendorsUntilTheSearchEnds()
{
    auto &manager = WTManager::shared();
    ModelIdentity sister;
    sister.vendorID = 0x6A1C;
    const int second = m_bed.bus.addPrinter(PrinterModel(sister));
    m_bed.bus.plug(second);
    manager.wt_startDiscoverPrinter();
    QVERIFY(m_bed.runUntil([&] { return manager.printerList().count() == 2; }));
    QCOMPARE(manager.printerList().objectAtIndex(1)->usbObj->VID, 0x6A1C);
    manager.wt_stopDiscoverPrinter();
    const LogCollector log;
    m_bed.bus.unplug(second);
    m_bed.time.advance(1s);
    manager.wt_startDiscoverPrinter();
    QVERIFY(m_bed.runUntil([&] { return manager.printerList().count() == 1; }));
    manager.wt_stopDiscoverPrinter();
    // Only the search that was started anew has told of the change.
    QCOMPARE(log.lines().filter(u"USB Printers count"_s).size(), 1);
}

QTEST_GUILESS_MAIN(PrinterCommandTests)
#include "PrinterCommandTests.moc"
