#include "FrameLayout.h"
#include "PrinterCommand.h"
#include "UsbTestBench.h"

#include <QRandomGenerator>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr auto wakeUp = PrinterCommand::WakeUp;

QByteArray frame(quint16 command)
{
    QByteArray bytes = FrameLayout::universalExit.toByteArray() + FrameLayout::enterLanguage.toByteArray();
    bytes += QByteArray::fromHex("00AC") + QByteArray(1, char(command >> 8)) + QByteArray(1, char(command));
    bytes += QByteArray(12, '\0');
    return bytes + FrameLayout::universalExit.toByteArray();
}

QByteArray someData(int size)
{
    QByteArray data;
    for (int i = 0; i < size; ++i)
        data += char(i * 7);
    return data;
}

/// A bench with one printer that answers as one fault says.
struct PrinterBench : UsbTestBench {
    explicit PrinterBench(const PrinterFault &fault = {}, const UsbShape &shape = {})
    {
        bed.addPrinter(PrinterModel(), shape);
        answer(fault);
        bed.plug();
    }

    void answer(PrinterFault fault)
    {
        fault.command = wakeUp;
        PrinterScript script;
        script.faults.push_back(std::move(fault));
        bed.setScript(script);
    }

    WTResult<std::unique_ptr<UsbConnection>> open()
    {
        return await([this] { return port.open(port.devices({ModelIdentity().vendorID}).at(0)); });
    }

    /// The connection of a printer that must be there.
    std::unique_ptr<UsbConnection> connect()
    {
        auto opened = open();
        if (!opened)
            qFatal("%s", qPrintable(opened.error().message));
        return std::move(opened.value());
    }

    std::optional<WTError> write(UsbConnection &connection)
    {
        return await([&] { return connection.write(frame(wakeUp)); });
    }

    /// Reads until there are `size` bytes, and tells what ended it before that.
    std::optional<WTError> read(UsbConnection &connection, qsizetype size, QByteArray &bytes)
    {
        return await([&]() -> std::optional<WTError> {
            while (bytes.size() < size) {
                const auto slice = connection.read(size - bytes.size());
                if (!slice)
                    return slice.error();
                if (slice.value().size() > size - bytes.size())
                    qFatal("More was read than asked for.");
                bytes += slice.value();
            }
            return std::nullopt;
        });
    }

    QString nodeCause(const QString &what, const QString &cause) const
    {
        return u"%1 %2: %3"_s.arg(what, bed.nodePath(), cause);
    }
};

/// The size of a reply's data, and the sizes of the transfers that the reply comes in.
using SlicedReply = std::pair<int, std::vector<qsizetype>>;

int codeOf(const std::optional<WTError> &error)
{
    return error ? error->code : 0;
}

constexpr int code(UsbErrorCode code)
{
    return static_cast<int>(code);
}

} // namespace

Q_DECLARE_METATYPE(PrinterFault)
Q_DECLARE_METATYPE(UsbShape)

class ConnectionTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kernelDriverComesBack_data();
    void kernelDriverComesBack();
    void alternateSettings_data();
    void alternateSettings();
    void aReplyInAnySlices_data();
    void aReplyInAnySlices();
    void writesOfAnySize_data();
    void writesOfAnySize();
    void transferFailures_data();
    void transferFailures();
    void aStallIsCleared();
    void mayNotBeOpened();
    void heldByAnotherProgram_data();
    void heldByAnotherProgram();
    void heldForAMoment();
    void cancelEndsTheTransferAndAllLaterOnes_data();
    void cancelEndsTheTransferAndAllLaterOnes();
    void discardedInputIsGone();
    void goneBeforeItWasOpened();
};

void ConnectionTests::kernelDriverComesBack_data()
{
    QTest::addColumn<bool>("hasKernelDriver");
    QTest::addColumn<bool>("unplugged");
    QTest::newRow("driver") << true << false;
    QTest::newRow("no driver") << false << false;
    QTest::newRow("driver, unplugged meanwhile") << true << true;
}

void ConnectionTests::kernelDriverComesBack()
{
    QFETCH(bool, hasKernelDriver);
    QFETCH(bool, unplugged);
    PrinterBench bench;
    bench.bed.setKernelDriver(hasKernelDriver);
    const QString before = hasKernelDriver ? u"usblp"_s : QString();
    QCOMPARE(bench.bed.boundDriver(), before);
    auto connection = bench.connect();
    QCOMPARE(bench.bed.boundDriver(), u"usbfs"_s);
    if (unplugged)
        bench.bed.unplug();
    bench.await([&] {
        connection.reset();
        return true;
    });
    if (unplugged)
        bench.bed.plug();
    QCOMPARE(bench.bed.boundDriver(), before);
    QCOMPARE(bench.bed.claims(), 0);
    QVERIFY(bench.open());
}

void ConnectionTests::alternateSettings_data()
{
    using Setting = UsbShape::AlternateSetting;
    QTest::addColumn<UsbShape>("shape");
    QTest::addColumn<int>("interface"); // -1: none will do
    QTest::addColumn<int>("setting");
    QTest::newRow("one setting") << UsbShape{} << 0 << 0;
    QTest::newRow("the second of two") << UsbShape{{{Setting{1, false}, Setting{2}}}} << 0 << 1;
    QTest::newRow("the first of two") << UsbShape{{{Setting{2}, Setting{4}}}} << 0 << 0;
    QTest::newRow("on the second interface")
        << UsbShape{{{Setting{0, true, 255, 0}}, {Setting{1}, Setting{2}}}} << 1 << 1;
    QTest::newRow("no printer") << UsbShape{{{Setting{0, true, 255, 0}}}} << -1 << 0;
    QTest::newRow("small packets") << UsbShape{{{Setting{}}}, 64} << 0 << 0;
}

void ConnectionTests::alternateSettings()
{
    QFETCH(UsbShape, shape);
    QFETCH(int, interface);
    QFETCH(int, setting);
    PrinterFault fault;
    fault.data = someData(300);
    PrinterBench bench(fault, shape);
    auto opened = bench.open();
    if (interface < 0) {
        QVERIFY(!opened);
        QCOMPARE(opened.error().code, code(UsbErrorCode::NotFound));
        QCOMPARE(opened.error().message, bench.nodeCause(u"opening"_s, u"no printer interface"_s));
        return;
    }
    QVERIFY2(opened, whyNot(opened));
    QCOMPARE(bench.bed.boundDriver(0, interface), u"usbfs"_s);
    QCOMPARE(bench.bed.alternateSetting(0, interface), setting);
    QVERIFY(!bench.write(*opened.value()));
    QByteArray reply;
    QVERIFY(!bench.read(*opened.value(), 316, reply));
    QCOMPARE(reply.sliced(16), someData(300));
}

void ConnectionTests::aReplyInAnySlices_data()
{
    using Slices = std::vector<qsizetype>;
    QTest::addColumn<int>("packetSize");
    QTest::addColumn<std::vector<SlicedReply>>("replies");
    const auto one = [](const char *name, int packetSize, int dataSize, const Slices &slices) {
        QTest::newRow(name) << packetSize << std::vector<SlicedReply>{{dataSize, slices}};
    };
    one("whole", 512, 176, {});
    one("header apart", 512, 176, {16});
    one("zero-length packets", 512, 4, {0, 0, 7, 0, 9, 0, 4, 0});
    one("a byte at a time", 64, 4, Slices(20, 1));
    one("whole packets only", 64, 112, {64});
    one("larger than one transfer", 512, 65000, {});
    QRandomGenerator random(20);
    for (const int packetSize : {64, 512}) {
        std::vector<SlicedReply> replies(20);
        for (auto &[dataSize, slices] : replies) {
            dataSize = random.bounded(1, 2000);
            for (qsizetype rest = dataSize + 16; rest > 0; rest -= slices.back())
                slices.push_back(random.bounded(0, int(std::min<qsizetype>(rest, 200)) + 1));
        }
        QTest::addRow("twenty at random, packets of %d", packetSize) << packetSize << replies;
    }
}

void ConnectionTests::aReplyInAnySlices()
{
    QFETCH(int, packetSize);
    QFETCH(std::vector<SlicedReply>, replies);
    UsbShape shape;
    shape.packetSize = quint16(packetSize);
    PrinterBench bench({}, shape);
    for (const auto &[dataSize, slices] : replies) {
        PrinterFault fault;
        fault.data = someData(dataSize);
        fault.slices = slices;
        bench.answer(fault);
        QByteArray slicing = "slices:";
        for (const qsizetype slice : slices)
            slicing += ' ' + QByteArray::number(slice);

        const auto connection = bench.connect();
        QVERIFY(!bench.write(*connection));
        QByteArray header;
        QByteArray data;
        const auto headerFailure = bench.read(*connection, 16, header);
        const auto dataFailure = bench.read(*connection, dataSize, data);
        QVERIFY2(!headerFailure && !dataFailure, slicing);
        QVERIFY2(header.startsWith(QByteArray::fromHex("00ACFF21")), slicing);
        QVERIFY2(data == someData(dataSize), slicing);
    }
}

void ConnectionTests::writesOfAnySize_data()
{
    QTest::addColumn<int>("frames");
    QTest::newRow("nothing") << 0;
    QTest::newRow("one frame") << 1;
    QTest::newRow("larger than one transfer") << 2000;
}

void ConnectionTests::writesOfAnySize()
{
    QFETCH(int, frames);
    PrinterFault fault;
    fault.silent = true;
    PrinterBench bench(fault);
    const auto connection = bench.connect();
    QVERIFY(!bench.await([&] { return connection->write(frame(wakeUp).repeated(frames)); }));
    QCOMPARE(bench.bed.record().count(wakeUp), frames);
    QVERIFY(bench.bed.record().allSound());
}

void ConnectionTests::transferFailures_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<int>("written"); // error code
    QTest::addColumn<int>("read");    // error code
    QTest::addColumn<int>("received");
    QTest::addColumn<QString>("message");

    const int unplugged = code(UsbErrorCode::Unplugged);
    const int stalled = code(UsbErrorCode::Stalled);
    PrinterFault fault;
    fault.unplugOut = 20;
    QTest::newRow("unplugged while it is written to")
        << fault << unplugged << unplugged << 0 << u"writing to %1: unplugged"_s;
    fault = {};
    fault.unplugIn = 0;
    QTest::newRow("unplugged before it answers") << fault << 0 << unplugged << 0 << u"reading from %1: unplugged"_s;
    fault.unplugIn = 7;
    QTest::newRow("unplugged in the header") << fault << 0 << unplugged << 7 << u"reading from %1: unplugged"_s;
    fault.unplugIn = 20;
    QTest::newRow("unplugged in the data") << fault << 0 << unplugged << 20 << u"reading from %1: unplugged"_s;
    fault = {};
    fault.stallOut = true;
    QTest::newRow("takes nothing but stalls") << fault << stalled << -1 << 0 << u"writing to %1: stalled"_s;
    fault = {};
    fault.stallIn = true;
    QTest::newRow("stalls in place of a reply") << fault << 0 << stalled << 0 << u"reading from %1: stalled"_s;
    fault.cutAt = 10;
    QTest::newRow("stalls in the header") << fault << 0 << stalled << 10 << u"reading from %1: stalled"_s;
}

void ConnectionTests::transferFailures()
{
    QFETCH(PrinterFault, fault);
    QFETCH(int, written);
    QFETCH(int, read);
    QFETCH(int, received);
    QFETCH(QString, message);
    fault.data = someData(100);
    PrinterBench bench(fault);
    const auto connection = bench.connect();
    const QString expected = message.arg(bench.bed.nodePath());

    auto failure = bench.write(*connection);
    QCOMPARE(codeOf(failure), written);
    QByteArray reply;
    if (read >= 0) {
        const auto readFailure = bench.read(*connection, 116, reply);
        QCOMPARE(codeOf(readFailure), read);
        if (!failure)
            failure = readFailure;
    }
    QCOMPARE(reply.size(), received);
    QCOMPARE(failure->domain, QString(usbErrorDomain));
    QCOMPARE(failure->message, expected);
}

void ConnectionTests::aStallIsCleared()
{
    PrinterFault stallOut;
    stallOut.occurrence = 1;
    stallOut.stallOut = true;
    PrinterBench bench(stallOut);
    const auto connection = bench.connect();
    QCOMPARE(codeOf(bench.write(*connection)), code(UsbErrorCode::Stalled));
    QVERIFY(!bench.write(*connection));
    QByteArray reply;
    QVERIFY(!bench.read(*connection, 16, reply));

    PrinterFault stallIn;
    stallIn.occurrence = 3;
    stallIn.stallIn = true;
    bench.answer(stallIn);
    QVERIFY(!bench.write(*connection));
    QCOMPARE(codeOf(bench.read(*connection, 32, reply)), code(UsbErrorCode::Stalled));
    QVERIFY(!bench.write(*connection));
    QVERIFY(!bench.read(*connection, 32, reply));
}

void ConnectionTests::mayNotBeOpened()
{
    PrinterBench bench;
    bench.bed.deny();
    const auto refused = bench.open();
    QVERIFY(!refused);
    QCOMPARE(refused.error().code, code(UsbErrorCode::PermissionDenied));
    QVERIFY2(refused.error().message.startsWith(u"permission denied on %1: "_s.arg(bench.bed.nodePath())),
             qPrintable(refused.error().message));
    QVERIFY(refused.error().message.contains(u"udev rule"_s));
    bench.bed.permit();
    QVERIFY(bench.open());
}

void ConnectionTests::heldByAnotherProgram_data()
{
    QTest::addColumn<bool>("byProcess");
    QTest::newRow("by nobody that can be seen") << false;
    QTest::newRow("by a process") << true;
}

void ConnectionTests::heldByAnotherProgram()
{
    QFETCH(bool, byProcess);
    PrinterBench bench;
    QString cause = u"held by another program"_s;
    if (byProcess)
        cause += u" (ipp-usb, pid %1)"_s.arg(bench.bed.holdByProcess());
    else
        bench.bed.hold();
    const QString driver = bench.bed.boundDriver();
    const auto start = bench.time.now();
    const auto refused = bench.open();
    QVERIFY(!refused);
    QCOMPARE(refused.error().code, code(UsbErrorCode::Busy));
    QCOMPARE(refused.error().message, bench.nodeCause(u"claiming interface 0 of"_s, cause));
    QCOMPARE(bench.time.now() - start, TimePort::Duration(800ms));
    QCOMPARE(bench.bed.boundDriver(), driver);
    bench.bed.release();
    QVERIFY(bench.open());
    QCOMPARE(bench.bed.boundDriver(), u"usblp"_s);
}

void ConnectionTests::heldForAMoment()
{
    PrinterBench bench;
    bench.bed.hold();
    const auto release = bench.time.after(500ms, [&] { bench.bed.release(); });
    const auto start = bench.time.now();
    const auto opened = bench.open();
    QVERIFY2(opened, whyNot(opened));
    QCOMPARE(bench.time.now() - start, TimePort::Duration(600ms));
}

void ConnectionTests::cancelEndsTheTransferAndAllLaterOnes_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<int>("written"); // error code
    QTest::addColumn<int>("received");
    const int cancelled = code(UsbErrorCode::Cancelled);
    PrinterFault fault;
    fault.acceptOnly = 10;
    QTest::newRow("while writing") << fault << cancelled << 0;
    fault = {};
    fault.silent = true;
    QTest::newRow("while reading, nothing came") << fault << 0 << 0;
    fault = {};
    fault.cutAt = 64;
    QTest::newRow("while reading, a whole packet came") << fault << 0 << 64;
}

void ConnectionTests::cancelEndsTheTransferAndAllLaterOnes()
{
    QFETCH(PrinterFault, fault);
    QFETCH(int, written);
    QFETCH(int, received);
    fault.data = someData(100);
    UsbShape shape;
    shape.packetSize = 64;
    PrinterBench bench(fault, shape);
    const auto connection = bench.connect();
    const auto cancel = bench.time.after(1s, [&] { connection->cancel(); });
    QCOMPARE(codeOf(bench.write(*connection)), written);
    QByteArray reply;
    QCOMPARE(codeOf(bench.read(*connection, 116, reply)), code(UsbErrorCode::Cancelled));
    QCOMPARE(reply.size(), received);
    QCOMPARE(codeOf(bench.write(*connection)), code(UsbErrorCode::Cancelled));
    QCOMPARE(codeOf(bench.read(*connection, 116, reply)), code(UsbErrorCode::Cancelled));
}

void ConnectionTests::discardedInputIsGone()
{
    PrinterFault fault;
    fault.occurrence = 1;
    fault.trailingGarbage = QByteArray(5000, 'x');
    PrinterBench bench(fault);
    const auto connection = bench.connect();
    QVERIFY(!bench.write(*connection));
    QByteArray reply;
    QVERIFY(!bench.read(*connection, 16, reply));
    bench.await([&] {
        connection->discardInput();
        return true;
    });
    QVERIFY(!bench.write(*connection));
    QByteArray second;
    QVERIFY(!bench.read(*connection, 16, second));
    QCOMPARE(second, reply);
}

void ConnectionTests::goneBeforeItWasOpened()
{
    PrinterBench bench;
    const UsbDevice device = bench.await([&] { return bench.port.devices({0x6A1B}).at(0); });
    bench.bed.unplug();
    const auto refused = bench.await([&] { return bench.port.open(device); });
    QVERIFY(!refused);
    QCOMPARE(refused.error().code, code(UsbErrorCode::NotFound));
    QCOMPARE(refused.error().message, u"opening location 0x01100000: no such device on the bus"_s);
}

QTEST_GUILESS_MAIN(ConnectionTests)
#include "ConnectionTests.moc"
