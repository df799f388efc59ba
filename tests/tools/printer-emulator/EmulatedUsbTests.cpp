#include "EmulatedCommand.h"
#include "EmulatedUsb.h"
#include "SystemTime.h"
#include "TestFrames.h"

#include <QTest>
#include <future>
#include <mutex>

using namespace Qt::Literals::StringLiterals;
using namespace TestFrames;
using namespace std::chrono_literals;

namespace
{
const std::vector<quint16> vendors{0x6A1B};
const QByteArray wakeUpReply = QByteArray::fromHex("00acff21000000000000000000000000");

int codeOf(const std::optional<WTError> &error)
{
    return error ? error->code : 0;
}

/// One exchange as text: the reply in hexadecimal, or the step that failed and its code.
QString exchange(EmulatedUsb &usb, const QByteArray &frame)
{
    const UsbDeviceList devices = usb.devices(vendors);
    if (devices.empty())
        return u"absent"_s;
    auto connection = usb.open(devices.front());
    if (!connection)
        return u"open %1"_s.arg(connection.error().code);
    if (const auto failed = connection.value()->write(frame))
        return u"write %1"_s.arg(failed->code);
    const auto reply = connection.value()->read(512);
    return reply ? QString::fromLatin1(reply.value().toHex()) : u"read %1"_s.arg(reply.error().code);
}
} // namespace

class EmulatedUsbTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsAWaitThatIsCancelled();
    void reportsEveryChange();
    void standsConcurrentUse();
};

void EmulatedUsbTests::endsAWaitThatIsCancelled()
{
    SystemTime time;
    EmulatedUsb usb(time, PrinterModel());
    auto connection = usb.open(usb.devices(vendors).front());
    QVERIFY(connection);
    QCOMPARE(usb.open(usb.devices(vendors).front()).error().code, int(UsbErrorCode::Busy));
    auto reply = std::async(std::launch::async, [&] { return connection.value()->read(512); });
    connection.value()->cancel();
    QCOMPARE(reply.get().error().code, int(UsbErrorCode::Cancelled));
    QCOMPARE(codeOf(connection.value()->write(shortFrame(0xFF21))), int(UsbErrorCode::Cancelled));
    connection.value().reset();
    QCOMPARE(exchange(usb, shortFrame(0xFF21)).toLatin1(), wakeUpReply.toHex());
}

void EmulatedUsbTests::reportsEveryChange()
{
    SystemTime time;
    EmulatedUsb usb(time, PrinterModel());
    std::mutex mutex;
    std::vector<std::size_t> sizes;
    const auto seen = [&] {
        const std::lock_guard lock(mutex);
        return sizes;
    };
    usb.watch(vendors, [&](const UsbDeviceList &list) {
        const std::lock_guard lock(mutex);
        sizes.push_back(list.size());
    });
    QTRY_COMPARE(seen(), (std::vector<std::size_t>{1}));
    usb.unplug();
    QTRY_COMPARE(seen(), (std::vector<std::size_t>{1, 0}));
    usb.plug();
    QTRY_COMPARE(seen(), (std::vector<std::size_t>{1, 0, 1}));
    usb.stopWatching();
    usb.unplug();
    usb.watch({0x1234}, [&](const UsbDeviceList &) { usb.stopWatching(); });
    usb.plug();
    usb.stopWatching();
    QCOMPARE(seen().size(), 3U);
}

void EmulatedUsbTests::standsConcurrentUse()
{
    SystemTime time;
    PrinterScript script;
    script.faults = {{.command = EmulatedCommand::WakeUp, .delay = 1ms, .sliceSeed = 3, .sliceDelay = 1ms}};
    EmulatedUsb usb(time, PrinterModel({}, script));
    auto user = std::async(std::launch::async, [&] {
        for (int round = 0; round < 100; ++round)
            exchange(usb, shortFrame(0xFF21));
    });
    for (int round = 0; round < 100; ++round) {
        usb.watch(vendors, [](const UsbDeviceList &) {});
        usb.unplug();
        usb.plug();
        usb.stopWatching();
    }
    user.get();
    usb.setScript({});
    QTRY_COMPARE(exchange(usb, shortFrame(0xFF21)).toLatin1(), wakeUpReply.toHex());
}

QTEST_GUILESS_MAIN(EmulatedUsbTests)
#include "EmulatedUsbTests.moc"
