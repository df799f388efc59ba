#include "EmulatedCommand.h"
#include "RecordedSend.h"
#include "SendWorkers.h"
#include "UsbTestBench.h"
#include "WTCServer.h"
#include "commandFrame.h"

#include <QTemporaryDir>
#include <QTest>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;
using HeadReaction = RecordedSend::HeadReaction;

namespace
{

constexpr auto wakeUp = EmulatedCommand::WakeUp;
constexpr int timeout = 6000;
const auto printerURI = u"usb://Quillmark/QZ100?serial=QM0001"_s;

/// The library over an emulated bus with one printer that answers as the faults say.
struct LibraryBench : UsbTestBench {
    explicit LibraryBench(std::vector<PrinterFault> faults = {}, const QString &logFile = {})
    {
        for (PrinterFault &fault : faults) {
            if (fault.command == 0)
                fault.command = wakeUp;
        }
        PrinterScript script;
        script.faults = std::move(faults);
        bed.addPrinter(PrinterModel({}, script));
        bed.plug();
        WTCServer::usePorts(port, time);
        WTCServer::sharedWithDelegate(nullptr, 255, logFile, {}, {});
        WTCServer::shared().registerUSBSearchServiceWithVIDs({u"0x6A1B"_s, u"0x6A1C"_s});
        await([this] { return port.devices(WTCServer::shared().vendorIDs()); });
    }

    ~LibraryBench()
    {
        runUntil([] { return SendWorkers::shared().isIdle(); });
        WTCServer::shared().removeUSBSearchService();
    }

    RecordedSend::Record finish(const RecordedSend &send)
    {
        if (!runUntil([&] { return send.hasEnded(); }))
            qFatal("The send never ends.");
        return send.record();
    }

    RecordedSend::Record send(HeadReaction reaction = HeadReaction::ReadAnnounced)
    {
        return finish(RecordedSend(printerURI, commandFrame(wakeUp), timeout, reaction));
    }
};

PrinterFault withData(int size)
{
    PrinterFault fault;
    fault.data = QByteArray(size, 'd');
    return fault;
}

PrinterFault changed(PrinterFault fault, const std::function<void(PrinterFault &)> &change)
{
    change(fault);
    return fault;
}

enum class Bus { Sound, Empty, Denied, Held, HeldByProcess };

} // namespace

Q_DECLARE_METATYPE(PrinterFault)
Q_DECLARE_METATYPE(HeadReaction)
Q_DECLARE_METATYPE(Bus)

class SendTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySendEndsOnce_data();
    void everySendEndsOnce();
    void aThrowingDataCallbackHarmsNothing();
    void theDeadlineCoversTheWholeExchange_data();
    void theDeadlineCoversTheWholeExchange();
    void aDeadlineThatPassesWhileOpeningSendsNothing();
    void aLateReplyIsNotTheNextOnes_data();
    void aLateReplyIsNotTheNextOnes();
    void sendsToOnePrinterTakeTurns();
    void waitingForATurnIsBounded();
    void ofTwoWithOneURITheFirstIsMeant();
    void aNameGivenBeforeTheDeviceIDWasKnownStays();
    void theDriverIsBackWhenTheDataCallbackRuns();
    void theLogTellsCountsAndNoBytes();
};

void SendTests::everySendEndsOnce_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<Bus>("bus");
    QTest::addColumn<HeadReaction>("reaction");
    QTest::addColumn<int>("headerSize");    // -1: absent
    QTest::addColumn<int>("dataSize");      // -1: absent
    QTest::addColumn<WTCErrorCode>("code"); // 0: no error
    QTest::addColumn<QString>("cause");

    const PrinterFault sound = withData(40);
    constexpr auto none = WTCErrorCode{};
    const auto exchange = [](const char *name, const PrinterFault &fault, int headerSize, int dataSize,
                             WTCErrorCode code, const QString &cause,
                             HeadReaction reaction = HeadReaction::ReadAnnounced) {
        QTest::newRow(name) << fault << Bus::Sound << reaction << headerSize << dataSize << code << cause;
    };
    const auto noExchange = [&](const char *name, Bus bus, const QString &cause) {
        QTest::newRow(name) << sound << bus << HeadReaction::ReadAnnounced << -1 << -1 << WTCErrorCode::Unreachable
                            << cause;
    };

    exchange("header and data", sound, 16, 40, none, {});
    exchange("announced length 0", withData(0), 16, -1, none, {});
    exchange("no data wanted", withData(0), 16, -1, none, {}, HeadReaction::ReadNone);
    exchange("stopped by the head callback", sound, 16, -1, none, {}, HeadReaction::Stop);
    exchange("the head callback throws", sound, 16, -1, WTCErrorCode::TransferFailed,
             u"the head callback threw an exception"_s, HeadReaction::Throw);
    exchange("zero-length packets", changed(sound, [](auto &fault) { fault.slices = {0, 0, 9, 0, 30, 0}; }), 16, 40,
             none, {});

    const QString timedOut = u"timed out after 6000 ms"_s;
    exchange("time-out while writing", changed(sound, [](auto &fault) { fault.acceptOnly = 30; }), -1, -1,
             WTCErrorCode::TimedOut, timedOut);
    exchange("silence", changed(sound, [](auto &fault) { fault.silent = true; }), -1, -1, WTCErrorCode::TimedOut,
             timedOut);
    exchange("time-out in the header", changed(sound, [](auto &fault) { fault.cutAt = 7; }), 7, -1,
             WTCErrorCode::TimedOut, timedOut);
    exchange("time-out in the data", changed(sound, [](auto &fault) { fault.cutAt = 30; }), 16, -1,
             WTCErrorCode::TimedOut, timedOut);

    exchange("unplugged while writing", changed(sound, [](auto &fault) { fault.unplugOut = 30; }), -1, -1,
             WTCErrorCode::Unreachable, u"writing to %1: unplugged"_s);
    exchange("unplugged before the header", changed(sound, [](auto &fault) { fault.unplugIn = 0; }), -1, -1,
             WTCErrorCode::Unreachable, u"reading from %1: unplugged"_s);
    exchange("unplugged in the header", changed(sound, [](auto &fault) { fault.unplugIn = 15; }), 15, -1,
             WTCErrorCode::Unreachable, u"reading from %1: unplugged"_s);
    exchange("unplugged in the data", changed(sound, [](auto &fault) { fault.unplugIn = 30; }), 16, -1,
             WTCErrorCode::Unreachable, u"reading from %1: unplugged"_s);

    exchange("stall while writing", changed(sound, [](auto &fault) { fault.stallOut = true; }), -1, -1,
             WTCErrorCode::TransferFailed, u"writing to %1: stalled"_s);
    exchange("stall in place of a reply", changed(sound, [](auto &fault) { fault.stallIn = true; }), -1, -1,
             WTCErrorCode::TransferFailed, u"reading from %1: stalled"_s);

    noExchange("no printer", Bus::Empty, u"no such printer on the USB bus"_s);
    noExchange("may not be opened", Bus::Denied, u"permission denied on %1: "_s);
    noExchange("held", Bus::Held, u"claiming interface 0 of %1: held by another program"_s);
    noExchange("held by a process", Bus::HeldByProcess,
               u"claiming interface 0 of %1: held by another program (ipp-usb, pid "_s);
}

void SendTests::everySendEndsOnce()
{
    QFETCH(PrinterFault, fault);
    QFETCH(Bus, bus);
    QFETCH(HeadReaction, reaction);
    QFETCH(int, headerSize);
    QFETCH(int, dataSize);
    QFETCH(WTCErrorCode, code);
    QFETCH(QString, cause);
    LibraryBench bench({fault});
    const QString node = bench.bed.nodePath();
    switch (bus) {
    case Bus::Sound:
        break;
    case Bus::Empty:
        bench.bed.unplug();
        break;
    case Bus::Denied:
        bench.bed.deny();
        break;
    case Bus::Held:
        bench.bed.hold();
        break;
    case Bus::HeldByProcess:
        bench.bed.holdByProcess();
        break;
    }

    const RecordedSend::Record record = bench.send(reaction);
    QCOMPARE(record.calls, QStringList({u"head"_s, u"data"_s}));
    QVERIFY(!record.onMainThread);
    QCOMPARE(record.header ? record.header->size() : -1, headerSize);
    QCOMPARE(record.data ? record.data->size() : -1, dataSize);
    QCOMPARE(record.error ? static_cast<WTCErrorCode>(record.error->code) : WTCErrorCode{}, code);
    if (record.error) {
        QCOMPARE(record.error->domain, QString(wtcErrorDomain));
        const QString message = printerURI + u": "_s + (cause.contains(u'%') ? cause.arg(node) : cause);
        QVERIFY2(record.error->message.startsWith(message), qPrintable(record.error->message));
    }
    QCOMPARE(bench.bed.claims(), 0);
}

void SendTests::aThrowingDataCallbackHarmsNothing()
{
    LibraryBench bench;
    const auto record =
        bench.finish(RecordedSend(printerURI, commandFrame(wakeUp), timeout, HeadReaction::ReadAnnounced, true));
    QCOMPARE(record.calls, QStringList({u"head"_s, u"data"_s}));
    QVERIFY(!bench.send().error);
}

void SendTests::theDeadlineCoversTheWholeExchange_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::newRow("slow to take the frame, then silent") << changed(withData(8), [](PrinterFault &fault) {
        fault.acceptDelay = 4s;
        fault.silent = true;
    });
    QTest::newRow("header in time, data too late") << changed(withData(8), [](PrinterFault &fault) {
        fault.delay = 4s;
        fault.slices = {16};
        fault.sliceDelay = 4s;
    });
    QTest::newRow("a byte a second") << changed(withData(8), [](PrinterFault &fault) {
        fault.slices = std::vector<qsizetype>(24, 1);
        fault.sliceDelay = 1s;
    });
}

void SendTests::theDeadlineCoversTheWholeExchange()
{
    QFETCH(PrinterFault, fault);
    LibraryBench bench({fault});
    const auto start = bench.time.now();
    const auto record = bench.send();
    QCOMPARE(record.error->code, static_cast<int>(WTCErrorCode::TimedOut));
    QCOMPARE(bench.time.now() - start, TimePort::Duration(timeout));
}

void SendTests::aDeadlineThatPassesWhileOpeningSendsNothing()
{
    LibraryBench bench;
    bench.bed.hold();
    const auto release = bench.time.after(700ms, [&] { bench.bed.release(); });
    const auto record = bench.finish(RecordedSend(printerURI, commandFrame(wakeUp), 500));
    QVERIFY(record.error);
    QCOMPARE(record.error->message, printerURI + u": timed out after 500 ms"_s);
    QCOMPARE(bench.bed.record().count(wakeUp), 0);
}

void SendTests::aLateReplyIsNotTheNextOnes_data()
{
    QTest::addColumn<PrinterFault>("fault");
    QTest::addColumn<HeadReaction>("reaction");
    const auto read = HeadReaction::ReadAnnounced;
    QTest::newRow("it came after the time-out")
        << changed(withData(3000), [](PrinterFault &fault) { fault.delay = 7s; }) << read;
    QTest::newRow("its data was not wanted") << withData(3000) << HeadReaction::Stop;
    QTest::newRow("less was wanted than was announced") << withData(3000) << HeadReaction::ReadNone;
    QTest::newRow("the head callback threw") << withData(3000) << HeadReaction::Throw;
    QTest::newRow("its data came too late") << changed(withData(3000), [](PrinterFault &fault) {
        fault.slices = {16};
        fault.sliceDelay = 6500ms;
    }) << read;
}

void SendTests::aLateReplyIsNotTheNextOnes()
{
    QFETCH(PrinterFault, fault);
    QFETCH(HeadReaction, reaction);
    fault.occurrence = 1;
    PrinterFault second = withData(5);
    second.occurrence = 2;
    LibraryBench bench({fault, second});
    bench.send(reaction);
    // Whatever the printer still had to say of the first command has arrived by now.
    bench.time.advance(10s);
    const auto record = bench.send();
    QVERIFY(!record.error);
    QCOMPARE(record.data, QByteArray(5, 'd'));
}

void SendTests::sendsToOnePrinterTakeTurns()
{
    LibraryBench bench({changed(withData(4), [](PrinterFault &fault) { fault.delay = 2s; })});
    const auto start = bench.time.now();
    const RecordedSend first(printerURI, commandFrame(wakeUp), timeout);
    const RecordedSend second(printerURI, commandFrame(wakeUp), timeout);
    for (const RecordedSend *send : {&first, &second}) {
        const auto record = bench.finish(*send);
        QVERIFY(!record.error);
        QCOMPARE(record.data, QByteArray(4, 'd'));
    }
    QCOMPARE(bench.time.now() - start, TimePort::Duration(4s));
    QVERIFY(bench.bed.record().allSound());
}

void SendTests::waitingForATurnIsBounded()
{
    LibraryBench bench({changed(withData(4), [](PrinterFault &fault) { fault.silent = true; })});
    const RecordedSend first(printerURI, commandFrame(wakeUp), 60000);
    bench.runUntil([&] { return bench.bed.record().count(wakeUp) == 1; });
    const auto start = bench.time.now();
    const RecordedSend second(printerURI, commandFrame(wakeUp), 1000);
    QCOMPARE(bench.finish(second).error->message, printerURI + u": timed out after 1000 ms"_s);
    QCOMPARE(bench.time.now() - start, TimePort::Duration(1s));
    QVERIFY(!first.hasEnded());
    bench.finish(first);
}

void SendTests::ofTwoWithOneURITheFirstIsMeant()
{
    LibraryBench bench;
    bench.bed.addPrinter();
    bench.bed.plug(1);
    QVERIFY(!bench.send().error);
    QCOMPARE(bench.bed.record(0).count(wakeUp), 1);
    QCOMPARE(bench.bed.record(1).count(wakeUp), 0);
    bench.bed.unplug(0);
    QVERIFY(!bench.send().error);
    QCOMPARE(bench.bed.record(1).count(wakeUp), 1);
}

// Another program had the printer when it was found, so that it was named by its texts alone.
void SendTests::aNameGivenBeforeTheDeviceIDWasKnownStays()
{
    LibraryBench bench;
    bench.bed.hold();
    bench.bed.replug();
    const auto list = [&] { return bench.await([&] { return bench.port.devices({ModelIdentity().vendorID}); }); };
    const QString name = deviceFromUsb(list().at(0)).URI;
    QVERIFY(name != printerURI);
    bench.bed.release();
    QCOMPARE(deviceFromUsb(list().at(0)).URI, printerURI);
    const auto record = bench.finish(RecordedSend(name, commandFrame(wakeUp), timeout));
    QVERIFY2(!record.error, qPrintable(record.error.value_or(WTError()).message));
}

void SendTests::theDriverIsBackWhenTheDataCallbackRuns()
{
    LibraryBench bench;
    std::promise<QString> driver;
    auto seen = driver.get_future();
    WTCUSBPrinter::IOKit_sendACLWithURI(printerURI, commandFrame(wakeUp), kACLHeadSize, timeout, {},
                                        [&](const auto &, const auto &) { driver.set_value(bench.bed.boundDriver()); });
    QVERIFY(bench.runUntil([&] { return seen.wait_for(0s) == std::future_status::ready; }));
    QCOMPARE(seen.get(), u"usblp"_s);
}

void SendTests::theLogTellsCountsAndNoBytes()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"library.log"_s);
    // What is encoded looks like a placeholder.
    const QString absentURI = u"usb://Quillmark/QZ100%2B?serial=QM0001"_s;
    {
        LibraryBench bench({withData(40)}, path);
        const QByteArray secret = "correct horse battery";
        bench.finish(RecordedSend(printerURI, commandFrame(wakeUp) + secret, timeout));
        bench.bed.unplug();
        bench.finish(RecordedSend(absentURI, commandFrame(wakeUp), timeout));
    }
    WTCServer::sharedWithDelegate(nullptr, 255, {}, {}, {});
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    for (const QString &line :
         {u"info search started: 0x6A1B 0x6A1C"_s, u"info devices: 1 "_s + printerURI,
          u"info sent 80 bytes to %1, header 16 bytes, data 40 bytes, 0 ms, done"_s.arg(printerURI),
          u"error sent 59 bytes to %1, header 0 bytes, data 0 bytes, 0 ms, %1: no such printer"_s.arg(absentURI),
          u"info search stopped"_s})
        QVERIFY2(text.contains(line), qPrintable(line + u" is not in\n"_s + text));
    for (const QString &secret : {u"horse"_s, u"dddd"_s, u"ENTER LANGUAGE"_s})
        QVERIFY(!text.contains(secret));
}

QTEST_GUILESS_MAIN(SendTests)
#include "SendTests.moc"
