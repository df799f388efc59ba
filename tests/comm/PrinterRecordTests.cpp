#include "FakeSpooler.h"
#include "LogCollector.h"
#include "PrintQueueBusyCheck.h"
#include "ResourceFolder.h"
#include "Rows.h"
#include "VirtualTime.h"
#include "WTManager.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

WTCDevice device(const QString &type, quint32 locationID)
{
    return {.printerType = type,
            .serialNumber = u"QM1"_s,
            .PID = 0xFFFE,
            .VID = 0x6A1B,
            .locationID = locationID,
            .manufacturer = u"Quillmark"_s,
            .URI = u"usb://Quillmark/"_s + type};
}

constexpr auto catalogue = R"({"printer_info": [
    {"device_name": "QZ100", "supportWifi": -1, "isOldACL": 1},
    {"device_name": "QZ200", "supportWifi": 0},
    {"device_name": "Quillmark QZ300", "supportWifi": 1, "isOldACL": 1}]})";

} // namespace

/// The manager's lists and records, without a bus.
class PrinterRecordTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void derivesTextsOfTheUsbSide_data();
    void derivesTextsOfTheUsbSide();
    void listsKnownPrintersWithWiFi();
    void listsAllWithoutACatalogue();
    void describesTheReportInTheLog();
    void asksTheSpoolerForThePrintersQueue();

private:
    ResourceFolder m_resources;
    VirtualTime m_time;
    FakeSpooler m_spooler;
};

void PrinterRecordTests::initTestCase()
{
    m_spooler.queues = {{.name = "QZ200", .printerState = "3"}, {.name = "QZ100", .printerState = "4"}};
    WTManager::usePorts(m_time, m_spooler);
}

void PrinterRecordTests::derivesTextsOfTheUsbSide_data()
{
    using Text = std::optional<QString>;
    const Rows<Text, QString, Text> row{"serialNumber", "uri", "uuid"};
    row("plain", u"AB12CD"_s, u"usb://Quillmark/QZ100%20series?serial=AB12CD"_s, u"00000000-0000-4142-3132-4344"_s);
    row("two characters", u"AB"_s, u"usb://Quillmark/QZ100%20series?serial=AB"_s, u"00000000-0000-4142-"_s);
    row("absent", std::nullopt, u"usb://Quillmark/QZ100%20series?serial=(null)"_s, std::nullopt);
    row("blank", u" "_s, u"usb://Quillmark/QZ100%20series?serial=%20"_s, std::nullopt);
    row("to be encoded", u"%\"#Ω"_s, u"usb://Quillmark/QZ100%20series?serial=%25%22%23%CE%A9"_s,
        u"00000000-0000-2522-233A9-"_s);
}

void PrinterRecordTests::derivesTextsOfTheUsbSide()
{
    WTUSB usb;
    usb.manufacturer = u"Quillmark"_s;
    usb.printerName = u"QZ100 series"_s;
    QFETCH(std::optional<QString>, serialNumber);
    usb.serialNumber = serialNumber;
    QTEST(usb.URI(), "uri");
    QTEST(usb.UUID(), "uuid");
}

void PrinterRecordTests::listsKnownPrintersWithWiFi()
{
    m_resources.writeCatalogue(catalogue);
    auto &manager = WTManager::shared();
    manager.getInstallList();
    manager.refreshUSBPrinterList(
        {device(u"QZ200"_s, 1), device(u"Quillmark QZ100 series"_s, 2), device(u"LX-1"_s, 3), device(u"QZ300"_s, 4)});
    QCOMPARE(manager.printerList().count(), 2);

    const WTPrinterPtr asked = manager.printerList().objectAtIndex(0);
    QCOMPARE(asked->printerType(), u"QZ100"_s);
    QCOMPARE(asked->serialNumber, u"QM1"_s);
    QCOMPARE(asked->connectionType, quint64{1});
    QCOMPARE(asked->wifiCode, -1);
    QVERIFY(asked->wifiPrinter && asked->oldAcl);
    QCOMPARE(asked->usbObj->printerName, u"Quillmark QZ100 series"_s);
    QCOMPARE(asked->usbObj->URI(), u"usb://Quillmark/Quillmark QZ100 series"_s);
    QCOMPARE(asked->usbObj->locationID, 2U);
    QCOMPARE(asked->usbObj->VID, quint64{0x6A1B});
    QCOMPARE(asked->usbObj->PID, quint64{0xFFFE});

    // Its catalogue name is no bare designation, which the record's own look-up wants.
    const WTPrinterPtr loose = manager.printerList().objectAtIndex(1);
    QCOMPARE(loose->printerType(), u"QZ300"_s);
    QCOMPARE(loose->wifiCode, 0);
    QVERIFY(!loose->wifiPrinter && !loose->oldAcl);

    manager.refreshUSBPrinterList({});
    QCOMPARE(manager.printerList().count(), 0);
    QCOMPARE(asked->printerType(), u"QZ100"_s);
}

void PrinterRecordTests::listsAllWithoutACatalogue()
{
    m_resources.removeCatalogue();
    const LogCollector log;
    auto &manager = WTManager::shared();
    manager.getInstallList();
    manager.refreshUSBPrinterList({device(u"LX-1"_s, 1)});
    QCOMPARE(manager.printerList().count(), 1);
    const WTPrinterPtr printer = manager.printerList().objectAtIndex(0);
    QVERIFY(!printer->wifiPrinter && !printer->oldAcl);
    QCOMPARE(printer->wifiCode, 0);
    QVERIFY(manager.oldAclPrinter(u"LX-1"_s));
    QVERIFY(log.lines().constFirst().startsWith("warning: "_L1));
}

void PrinterRecordTests::describesTheReportInTheLog()
{
    const LogCollector log;
    WTManager::shared().refreshUSBPrinterList({device(u"QZ100"_s, 0x01200000), device(u"QZ200"_s, 1)});
    WTManager::shared().refreshUSBPrinterList({});
    QCOMPARE(log.lines(), (QStringList{u"info: USB Printers count:2, (QZ100 (0x6A1B:0xFFFE at 0x01200000), "
                                       "QZ200 (0x6A1B:0xFFFE at 0x00000001))"_s,
                                       u"info: USB Printers count:0, ()"_s}));
}

void PrinterRecordTests::asksTheSpoolerForThePrintersQueue()
{
    const LogCollector log;
    QVERIFY(
        isWorkingWithPrintType(WTManager::shared().spooler(), u"quillmark QZ-100"_s, BusyCheckVariant::ManualEntry));
    QCOMPARE(log.lines(), QStringList{});
    QVERIFY(isWorkingWithPrintType(WTManager::shared().spooler(), u"quillmark QZ100"_s, BusyCheckVariant::List));
    QCOMPARE(log.lines(), (QStringList{u"info: 查看本地是否有打印作业,打印机名称quillmark QZ100"_s,
                                       u"info: 打印机正在打印中,当前打印机为QZ200"_s,
                                       u"info: 打印机正在打印中,当前打印机为QZ100"_s, u"info: 打印机正在打印中"_s}));
}

QTEST_GUILESS_MAIN(PrinterRecordTests)
#include "PrinterRecordTests.moc"
