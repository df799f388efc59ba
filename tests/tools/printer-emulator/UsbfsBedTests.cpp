#include "EmulatedCommand.h"
#include "LibusbPrinter.h"
#include "SystemTime.h"
#include "TestFrames.h"
#include "UsbfsBed.h"
#include "VirtualTime.h"

#include <QFile>
#include <QTest>
#include <future>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace TestFrames;
using namespace std::chrono_literals;

namespace
{
const QByteArray wakeUpReply = QByteArray::fromHex("00acff21000000000000000000000000");

/// Opens the printer and takes its interface from usblp.
void seize(LibusbPrinter &printer)
{
    QCOMPARE(printer.open(), 0);
    QCOMPARE(libusb_set_auto_detach_kernel_driver(printer.handle(), 1), 0);
    QCOMPARE(libusb_claim_interface(printer.handle(), 0), 0);
}

QByteArray sysfs(const QString &file)
{
    QFile attribute(file);
    return attribute.open(QFile::ReadOnly) ? attribute.readAll() : QByteArray("absent");
}

PrinterScript withFault(quint16 command, const std::function<void(PrinterFault &)> &change)
{
    PrinterScript script;
    change(script.faults.emplace_back());
    script.faults.back().command = command;
    return script;
}
} // namespace

/// The emulated bus as plain libusb sees it.
class UsbfsBedTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_bed.reset(); }

    void showsItself();
    void lendsItsInterface();
    void saysWhatFitsInPackets();
    void takesNothingThatWasCalledBack();
    void livesInThePortsTime();
    void followsItsEvents();

private:
    SystemTime m_time;
    std::optional<UsbfsBed> m_bed;
};

void UsbfsBedTests::init()
{
    m_bed.emplace(m_time);
    m_bed->addPrinter();
    m_bed->plug();
}

void UsbfsBedTests::showsItself()
{
    const QString device = m_bed->sysfsPath();
    const QByteArray deviceID = ModelIdentity().deviceID();
    QCOMPARE(sysfs(device + u"/serial"_s), QByteArray("QM0001\n"));
    QCOMPARE(sysfs(device + u":1.0/bInterfaceProtocol"_s), QByteArray("02\n"));
    QCOMPARE(sysfs(device + u":1.0/ieee1284_id"_s), deviceID);

    LibusbPrinter printer;
    QCOMPARE(printer.open(), 0);
    unsigned char text[256];
    QVERIFY(libusb_get_string_descriptor_ascii(printer.handle(), 2, text, sizeof text) > 0);
    QCOMPARE(reinterpret_cast<char *>(text), "Quillmark QZ100");
    QCOMPARE(libusb_get_string_descriptor_ascii(printer.handle(), 9, text, sizeof text), int(LIBUSB_ERROR_PIPE));
    // The device ID may be read while usblp has the interface, the port status not.
    const int size = libusb_control_transfer(printer.handle(), 0xA1, 0, 0, 0, text, sizeof text, 1000);
    QCOMPARE(QByteArray(reinterpret_cast<char *>(text), size).sliced(2), deviceID);
    QVERIFY(libusb_control_transfer(printer.handle(), 0xA1, 1, 0, 0, text, 1, 1000) < 0);
}

void UsbfsBedTests::lendsItsInterface()
{
    LibusbPrinter printer;
    QCOMPARE(printer.open(), 0);
    QCOMPARE(m_bed->boundDriver(), u"usblp"_s);
    QCOMPARE(libusb_kernel_driver_active(printer.handle(), 0), 1);
    QCOMPARE(libusb_claim_interface(printer.handle(), 0), int(LIBUSB_ERROR_BUSY));

    QCOMPARE(libusb_detach_kernel_driver(printer.handle(), 0), 0);
    QCOMPARE(m_bed->boundDriver(), QString());
    QCOMPARE(sysfs(m_bed->sysfsPath() + u":1.0/ieee1284_id"_s), QByteArray("absent"));
    QCOMPARE(libusb_claim_interface(printer.handle(), 0), 0);
    QCOMPARE(m_bed->boundDriver(), u"usbfs"_s);
    QCOMPARE(libusb_attach_kernel_driver(printer.handle(), 0), int(LIBUSB_ERROR_BUSY));
    QCOMPARE(printer.write(shortFrame(0xFF21)), 0);
    QByteArray reply;
    QCOMPARE(printer.read(reply), 0);
    QCOMPARE(reply, wakeUpReply);

    QCOMPARE(libusb_release_interface(printer.handle(), 0), 0);
    QCOMPARE(libusb_attach_kernel_driver(printer.handle(), 0), 0);
    QCOMPARE(m_bed->boundDriver(), u"usblp"_s);
    QVERIFY(sysfs(m_bed->sysfsPath() + u":1.0/ieee1284_id"_s).startsWith("MFG:"));

    seize(printer);
    QCOMPARE(m_bed->claims(), 1);
    QCOMPARE(libusb_release_interface(printer.handle(), 0), 0);
    QCOMPARE(m_bed->boundDriver(), u"usblp"_s);
    QCOMPARE(m_bed->record().commands(), std::vector{EmulatedCommand::WakeUp});
}

void UsbfsBedTests::saysWhatFitsInPackets()
{
    // With its header, the first reply fills two packets, so that a zero-length one ends it.
    m_bed->setScript(withFault(EmulatedCommand::Capability, [](auto &fault) { fault.data = QByteArray(1008, 'd'); }));
    LibusbPrinter printer;
    seize(printer);
    QByteArray reply;
    QCOMPARE(printer.write(shortFrame(0xFF81)), 0);
    QCOMPARE(printer.read(reply, 4096), 0);
    QCOMPARE(reply.size(), 1024);
    QCOMPARE(printer.write(shortFrame(0xFF81)), 0);
    QCOMPARE(printer.read(reply, 1024), 0);
    QCOMPARE(printer.read(reply, 512), 0);
    QCOMPARE(reply.size(), 0);
    QCOMPARE(printer.write(shortFrame(0xFF21)), 0);
    QCOMPARE(printer.read(reply, 15), int(LIBUSB_ERROR_OVERFLOW));
}

void UsbfsBedTests::takesNothingThatWasCalledBack()
{
    m_bed->setScript(withFault(EmulatedCommand::WakeUp, [](auto &fault) { fault.acceptDelay = 1h; }));
    LibusbPrinter printer;
    seize(printer);
    QCOMPARE(printer.write(shortFrame(0xFF21), 30), int(LIBUSB_ERROR_TIMEOUT));
    QVERIFY(m_bed->record().frames.empty());
}

void UsbfsBedTests::livesInThePortsTime()
{
    VirtualTime time;
    m_bed.reset();
    m_bed.emplace(time);
    PrinterScript script = withFault(EmulatedCommand::Configuration, [](auto &fault) {
        fault.slices = {7};
        fault.sliceDelay = 20s;
        fault.acceptDelay = 10s;
    });
    script.joinTime = 3min;
    m_bed->addPrinter(PrinterModel({}, script));
    m_bed->plug();
    LibusbPrinter printer;
    seize(printer);

    const auto begin = time.now();
    std::vector<std::pair<QByteArray, TimePort::Duration>> replies;
    const auto since = [&] { return std::chrono::duration_cast<TimePort::Duration>(time.now() - begin); };
    auto exchange = std::async(std::launch::async, [&] {
        printer.write(configuration("Office", "secret-1"), 0);
        replies.emplace_back(QByteArray(), since());
        for (int slice = 0; slice < 2; ++slice) {
            QByteArray reply;
            printer.read(reply, 512, 0);
            replies.emplace_back(reply, since());
        }
    });
    QVERIFY(time.runUntil([&] { return exchange.wait_for(0s) == std::future_status::ready; },
                          [this] { return m_bed->busy(); }));
    QCOMPARE(replies.size(), 3U);
    QCOMPARE(replies[0].second, TimePort::Duration(10s));
    QCOMPARE(replies[1].first.size(), 7);
    QCOMPARE(replies[1].second, TimePort::Duration(3min + 10s));
    QCOMPARE(replies[2].first.size(), 9);
    QCOMPARE(replies[2].second, TimePort::Duration(3min + 30s));
    QVERIFY(!m_bed->busy());
    printer.close();
    m_bed.reset();
}

void UsbfsBedTests::followsItsEvents()
{
    VirtualTime time;
    m_bed.reset();
    m_bed.emplace(time);
    PrinterScript script;
    using enum BusEvent::Action;
    script.events = {{Plug, std::nullopt, 2s},
                     {Hold, BusEvent::Cause{EmulatedCommand::WakeUp, 1}, 0s},
                     {Release, BusEvent::Cause{EmulatedCommand::WakeUp, 1}, 5s},
                     {Unplug, BusEvent::Cause{EmulatedCommand::WakeUp, 1}, 9s}};
    m_bed->addPrinter(PrinterModel({}, script));
    time.advance(1999ms);
    QVERIFY(!m_bed->isPlugged());
    time.advance(1ms);
    QTRY_VERIFY(!m_bed->busy());
    QVERIFY(m_bed->isPlugged());

    LibusbPrinter printer;
    seize(printer);
    QCOMPARE(printer.write(shortFrame(0xFF21)), 0);
    QCOMPARE(libusb_release_interface(printer.handle(), 0), 0);
    QCOMPARE(libusb_claim_interface(printer.handle(), 0), int(LIBUSB_ERROR_BUSY));
    time.advance(5s);
    QCOMPARE(libusb_claim_interface(printer.handle(), 0), 0);
    time.advance(4s);
    QVERIFY(!m_bed->isPlugged());
    printer.close();
    m_bed.reset();
}

QTEST_GUILESS_MAIN(UsbfsBedTests)
#include "UsbfsBedTests.moc"
