#include "UsbipDevice.h"
#include "TestFrames.h"

#include <QTest>
#include <QtEndian>

using namespace TestFrames;
using namespace std::chrono_literals;

namespace
{
const QByteArray wakeUpReply = QByteArray::fromHex("00acff21000000000000000000000000");

/// A number as it stands in a message.
QByteArray number(qint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// USBIP_CMD_SUBMIT: command, sequence, device, direction, endpoint, flags, length, three of isochronous transfers,
/// setup.
QByteArray submit(int sequence, bool in, int endpoint, int length, const QByteArray &setup = QByteArray(8, '\0'))
{
    return number(1) + number(sequence) + number(0x10002) + number(in) + number(endpoint) + number(0) + number(length) +
           number(0) + number(0) + number(0) + setup;
}

/// USBIP_CMD_UNLINK
QByteArray unlink(int sequence, int unlinked)
{
    return number(2) + number(sequence) + number(0x10002) + number(0) + number(0) + number(unlinked) +
           QByteArray(24, '\0');
}

/// USBIP_RET_SUBMIT and USBIP_RET_UNLINK (4), with what was transferred behind.
QByteArray answer(int command, int sequence, int status, int length, const QByteArray &data = {})
{
    return number(command) + number(sequence) + QByteArray(12, '\0') + number(status) + number(length) +
           QByteArray(20, '\0') + data;
}

/// A printer, and the host's side of its wire.
class Wire
{
public:
    explicit Wire(PrinterScript script = {})
        : m_device(PrinterModel({}, std::move(script)), {[](const ReceivedFrame &) {}, [](const BusEvent &) {}})
    {
    }

    QByteArray exchange(const QByteArray &header, const QByteArray &data = {})
    {
        const auto request = UsbipMessages::Request::parse(header);
        if (request.dataSize() != data.size())
            return "expects " + QByteArray::number(request.dataSize()) + " bytes";
        m_device.handle(request, data);
        return after(0ms);
    }
    QByteArray after(std::chrono::milliseconds time)
    {
        m_now += time;
        m_plugged = m_device.pump(m_now);
        return m_device.takeAnswers();
    }
    bool isPlugged() const { return m_plugged; }

private:
    UsbipDevice m_device;
    UsbipDevice::Instant m_now;
    bool m_plugged = true;
};
} // namespace

class UsbipDeviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersControlRequests_data();
    void answersControlRequests();
    void carriesAnExchange();
    void givesUpWhatTheHostGivesUp();
    void stallsUntilItIsCleared();
    void leavesInMidTransfer();
};

void UsbipDeviceTest::answersControlRequests_data()
{
    QTest::addColumn<QByteArray>("setup");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("data");

    const QByteArray device = QByteArray::fromHex("12010002000000401b6a010000010102030"
                                                  "1");
    QTest::newRow("device descriptor") << QByteArray::fromHex("8006000100001200") << 18 << 0 << device;
    QTest::newRow("its beginning") << QByteArray::fromHex("8006000100000800") << 8 << 0 << device.first(8);
    QTest::newRow("configuration") << QByteArray::fromHex("800600020000ff00") << 255 << 0
                                   << QByteArray::fromHex("09022000010100c001"
                                                          "090400000207010200"
                                                          "07050102000200"
                                                          "07058202000200");
    QTest::newRow("languages") << QByteArray::fromHex("800600030000ff00") << 255 << 0
                               << QByteArray::fromHex("04030904");
    QTest::newRow("device ID") << QByteArray::fromHex("a100000000000600") << 6 << 0
                               << QByteArray(QByteArray::fromHex("003c") + "MFG:");
    QTest::newRow("status") << QByteArray::fromHex("8000000000000200") << 2 << 0 << QByteArray(2, '\0');
    QTest::newRow("no such string") << QByteArray::fromHex("800609030000ff00") << 255 << -32 << QByteArray();
}

void UsbipDeviceTest::answersControlRequests()
{
    QFETCH(QByteArray, setup);
    QFETCH(int, length);
    QFETCH(int, status);
    QFETCH(QByteArray, data);
    QCOMPARE(Wire().exchange(submit(7, true, 0, length, setup)).toHex(' '),
             answer(3, 7, status, int(data.size()), data).toHex(' '));
}

void UsbipDeviceTest::carriesAnExchange()
{
    PrinterScript script;
    script.faults = {{.command = 0xFF21, .delay = 300ms}};
    Wire wire(script);
    const QByteArray frame = shortFrame(0xFF21);
    QCOMPARE(wire.exchange(submit(1, false, 1, int(frame.size())), frame), answer(3, 1, 0, int(frame.size())));
    QCOMPARE(wire.exchange(submit(2, true, 2, 512)), QByteArray());
    QCOMPARE(wire.after(299ms), QByteArray());
    QCOMPARE(wire.after(1ms), answer(3, 2, 0, 16, wakeUpReply));
}

void UsbipDeviceTest::givesUpWhatTheHostGivesUp()
{
    Wire wire;
    QCOMPARE(wire.exchange(submit(1, true, 2, 512)), QByteArray());
    QCOMPARE(wire.exchange(unlink(2, 1)), answer(4, 2, -104, 0));
    QCOMPARE(wire.exchange(unlink(3, 1)), answer(4, 3, 0, 0));
    const QByteArray frame = shortFrame(0xFF21);
    QCOMPARE(wire.exchange(submit(4, false, 1, int(frame.size())), frame), answer(3, 4, 0, int(frame.size())));
    QCOMPARE(wire.exchange(submit(5, true, 2, 512)), answer(3, 5, 0, 16, wakeUpReply));
}

void UsbipDeviceTest::stallsUntilItIsCleared()
{
    PrinterScript script;
    script.faults = {{.command = 0xFF21, .occurrence = 1, .stallOut = true}};
    Wire wire(script);
    const QByteArray frame = shortFrame(0xFF21);
    QCOMPARE(wire.exchange(submit(1, false, 1, int(frame.size())), frame), answer(3, 1, -32, 0));
    QCOMPARE(wire.exchange(submit(2, false, 1, int(frame.size())), frame), answer(3, 2, -32, 0));
    const QByteArray clearHalt = QByteArray::fromHex("0201000001000000");
    QCOMPARE(wire.exchange(submit(3, false, 0, 0, clearHalt)), answer(3, 3, 0, 0));
    QCOMPARE(wire.exchange(submit(4, false, 1, int(frame.size())), frame), answer(3, 4, 0, int(frame.size())));
}

void UsbipDeviceTest::leavesInMidTransfer()
{
    PrinterScript script;
    script.faults = {{.command = 0xFF21, .unplugOut = 10}};
    Wire wire(script);
    const QByteArray frame = shortFrame(0xFF21);
    QCOMPARE(wire.exchange(submit(1, false, 1, int(frame.size())), frame), QByteArray());
    QVERIFY(!wire.isPlugged());
}

QTEST_APPLESS_MAIN(UsbipDeviceTest)
#include "UsbipDeviceTest.moc"
