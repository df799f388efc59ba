#include "EmulatedCommand.h"
#include "RecordedSend.h"
#include "Rows.h"
#include "SendWorkers.h"
#include "UsbTestBed.h"
#include "WTCServer.h"
#include "commandFrame.h"

#include <QTemporaryDir>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;
using HeadReaction = RecordedSend::HeadReaction;
using Faults = std::vector<PrinterFault>;

namespace
{

using enum HeadReaction;
using enum WTCErrorCode;

constexpr auto wakeUp = EmulatedCommand::WakeUp;
constexpr int timeout = 6000;
const QByteArray frame = commandFrame(wakeUp);
const auto printerURI = u"usb://Quillmark/QZ100?serial=QM0001"_s;

/// The library over an emulated bus with one printer that answers as the faults say.
struct LibraryBed : UsbTestBed {
    explicit LibraryBed(Faults faults = {}, const QString &logFile = {})
    {
        for (PrinterFault &fault : faults) {
            if (fault.command == 0)
                fault.command = wakeUp;
        }
        PrinterScript script;
        script.faults = std::move(faults);
        bus.addPrinter(PrinterModel({}, script));
        bus.plug();
        WTCServer::usePorts(port, time);
        WTCServer::sharedWithDelegate(nullptr, 255, logFile, {}, {});
        WTCServer::shared().registerUSBSearchServiceWithVIDs({u"0x6A1B"_s, u"0x6A1C"_s});
        await([this] { return port.devices(WTCServer::shared().vendorIDs()); });
    }

    ~LibraryBed()
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

    /// An answer to another command, after which no earlier one is waited for in the next test.
    void settle() { finish(RecordedSend(printerURI, commandFrame(EmulatedCommand::Capability), timeout)); }

    RecordedSend::Record send(HeadReaction reaction = ReadAnnounced)
    {
        return finish(RecordedSend(printerURI, frame, timeout, reaction));
    }
};

QByteArray data(int size)
{
    return QByteArray(size, 'd');
}

/// What happens on the bus before the send.
using Event = std::function<void(UsbfsBed &)>;

} // namespace

class SendTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHeadCallbackDecidesWhatIsRead()
    {
        eachRow(
            {
                {"all that is announced", ReadAnnounced, 40, {}},
                {"nothing", ReadNone, -1, {}},
                {"it stops", Stop, -1, {}},
                {"it throws", Throw, -1, u": the head callback threw an exception"_s},
            },
            [&](const HeadReaction &reaction, int dataSize, const QString &why) {
                LibraryBed bed(Faults{{.data = data(40), .slices = {0, 9, 0, 47, 0}}});
                const RecordedSend::Record record = bed.send(reaction);
                QCOMPARE(record.calls, QStringList({u"head"_s, u"data"_s}));
                QCOMPARE(record.header.value_or(QByteArray()).size(), 16);
                QCOMPARE(record.data ? record.data->size() : -1, dataSize);
                QCOMPARE(record.error ? record.error->message : QString(), why.isEmpty() ? why : printerURI + why);
            });
    }

    void everyFailingSendEndsOnce()
    {
        const QString timedOut = u"timed out after 6000 ms"_s;
        const QString leftWriting = u"writing to %1: unplugged"_s, leftReading = u"reading from %1: unplugged"_s;
        const QString held = u"claiming interface 0 of %1: held by another program (ipp-usb, pid "_s;
        const Event none = [](UsbfsBed &) {};
        const Event unplug = [](UsbfsBed &bed) { bed.unplug(); };
        const Event deny = [](UsbfsBed &bed) { bed.deny(); };
        const Event hold = [](UsbfsBed &bed) { bed.holdByProcess(); };
        using Bus = UsbErrorCode;
        eachRow(
            {
                {"time-out while writing", {.acceptOnly = 30}, none, -1, TimedOut, Bus::TimedOut, timedOut},
                {"time-out in the header", {.cutAt = 7}, none, 7, TimedOut, Bus::TimedOut, timedOut},
                {"time-out in the data", {.cutAt = 30}, none, 16, TimedOut, Bus::TimedOut, timedOut},
                {"gone while writing", {.unplugOut = 30}, none, -1, Unreachable, Bus::Unplugged, leftWriting},
                {"gone before the header", {.unplugIn = 0}, none, -1, Unreachable, Bus::Unplugged, leftReading},
                {"gone in the header", {.unplugIn = 15}, none, 15, Unreachable, Bus::Unplugged, leftReading},
                {"a stall", {.stallIn = true}, none, -1, TransferFailed, Bus::Stalled, u"reading from %1: stalled"_s},
                {"no printer", {}, unplug, -1, Unreachable, Bus::NotFound, u"no such printer on the USB bus"_s},
                {"no permission", {}, deny, -1, Unreachable, Bus::PermissionDenied, u"permission denied on %1: "_s},
                {"held by a process", {}, hold, -1, Unreachable, Bus::Busy, held},
            },
            [&](PrinterFault fault, const Event &event, int headerSize, const WTCErrorCode &code,
                const UsbErrorCode &cause, const QString &why) {
                fault.data = data(40);
                LibraryBed bed({fault});
                const QString node = bed.bus.nodePath();
                event(bed.bus);
                const auto obstacle = bed.await([] { return WTCUSBPrinter::obstacle(printerURI); });

                const RecordedSend::Record record = bed.send();
                QCOMPARE(record.calls, QStringList({u"head"_s, u"data"_s}));
                QVERIFY(!record.onMainThread);
                QCOMPARE(record.header ? record.header->size() : -1, headerSize);
                QVERIFY(!record.data && record.error);
                QCOMPARE(static_cast<WTCErrorCode>(record.error->code), code);
                QCOMPARE(record.error->domain, QString(wtcErrorDomain));
                QCOMPARE(record.error->cause.value_or(UsbCause{UsbErrorCode{}}).code, cause);
                const QString message = printerURI + u": "_s + (why.contains(u'%') ? why.arg(node) : why);
                QVERIFY2(record.error->message.startsWith(message), qPrintable(record.error->message));
                // What is known beforehand is said beforehand, in the same words.
                const bool knownBefore = code == Unreachable && cause != UsbErrorCode::Unplugged;
                QCOMPARE(obstacle, knownBefore ? record.error : std::nullopt);
                QCOMPARE(bed.bus.claims(), 0);
            });
    }

    void theDeadlineCoversTheWholeExchange()
    {
        const std::vector<qsizetype> single(24, 1);
        eachRow(
            {
                {"slow to take the frame, then silent", {.acceptDelay = 4s, .silent = true}},
                {"a byte a second", {.data = data(8), .slices = single, .sliceDelay = 1s}},
            },
            [&](const PrinterFault &fault) {
                LibraryBed bed({fault});
                const auto start = bed.time.now();
                const auto record = bed.send();
                QCOMPARE(record.error->code, static_cast<int>(TimedOut));
                QCOMPARE(bed.time.now() - start, TimePort::Duration(timeout));
            });
    }

    void aDeadlineThatPassesWhileOpeningSendsNothing()
    {
        LibraryBed bed;
        bed.bus.hold();
        const auto release = bed.time.after(700ms, [&] { bed.bus.release(); });
        const auto record = bed.finish(RecordedSend(printerURI, frame, 500));
        QVERIFY(record.error);
        QCOMPARE(record.error->message, printerURI + u": timed out after 500 ms"_s);
        QCOMPARE(bed.bus.record().count(wakeUp), 0);
    }

    // The next command is sent at once, so that the late reply comes ahead of its own, or when all has been said
    // already.
    void aLateReplyIsNotTheNextOnes()
    {
        const QByteArray much = data(3000);
        const std::vector<qsizetype> bytes(116, 1);
        eachRow(
            {
                {"it came after the time-out", {.data = much, .delay = 7s}, ReadAnnounced},
                {"less was wanted than was announced", {.data = much}, ReadNone},
                {"the head callback threw", {.data = much}, Throw},
                {"its header came in part", {.data = much, .slices = {7}, .sliceDelay = 4s}, ReadAnnounced},
                {"its data came too late, with pauses",
                 {.data = much, .slices = {16, 9, 700}, .sliceDelay = 3s},
                 ReadAnnounced},
                {"it came a byte at a time", {.data = data(100), .slices = bytes, .sliceDelay = 100ms}, ReadAnnounced},
            },
            [&](PrinterFault fault, const HeadReaction &reaction) {
                fault.occurrence = 1;
                constexpr auto next = EmulatedCommand::Capability;
                for (const auto pause : {0s, 400s}) {
                    LibraryBed bed({fault, {.command = next, .data = data(5)}});
                    bed.send(reaction);
                    bed.time.advance(pause);
                    for (const auto command : {next, next, wakeUp}) {
                        const auto record = bed.finish(RecordedSend(printerURI, commandFrame(command), 400'000));
                        QVERIFY2(!record.error, qPrintable(record.error.value_or(WTError()).message));
                        QCOMPARE(record.header->sliced(2, 2), QByteArray::fromHex(command == next ? "FF81" : "FF21"));
                        QCOMPARE(record.data.value_or(QByteArray()).size(), command == next ? 5 : 0);
                    }
                }
            });
    }

    // The second question is as good as the first: whichever answer comes, it is the answer.
    void aLateReplyToTheSameCommandIsTaken()
    {
        LibraryBed bed(Faults{{.occurrence = 1, .data = data(4), .delay = 9s}, {.occurrence = 2, .silent = true}});
        QCOMPARE(bed.send().error->code, static_cast<int>(TimedOut));
        const auto record = bed.send();
        QVERIFY(!record.error);
        QCOMPARE(record.data, data(4));
        bed.settle();
    }

    void emptyPacketsDoNotSpin()
    {
        LibraryBed bed(Faults{{.slices = {0, 0}}});
        const auto start = bed.time.now();
        QVERIFY(!bed.send().error);
        QVERIFY(bed.time.now() > start);
    }

    void sendsToOnePrinterTakeTurns()
    {
        LibraryBed bed(Faults{{.data = data(4), .delay = 2s}});
        const auto start = bed.time.now();
        const RecordedSend first(printerURI, frame, timeout);
        const RecordedSend second(printerURI, frame, timeout);
        for (const RecordedSend *send : {&first, &second}) {
            const auto record = bed.finish(*send);
            QVERIFY(!record.error);
            QCOMPARE(record.data, data(4));
        }
        QCOMPARE(bed.time.now() - start, TimePort::Duration(4s));
        QVERIFY(bed.bus.record().allSound());
    }

    // The printer might not be opened when it was found, so that it was named by its texts alone.
    void aNameGivenBeforeTheDeviceIDWasKnownStays()
    {
        LibraryBed bed;
        bed.bus.setKernelDriver(false);
        bed.bus.deny();
        bed.bus.replug();
        const auto list = [&] { return bed.await([&] { return bed.port.devices({ModelIdentity().vendorID}); }); };
        const QString name = deviceFromUsb(list().at(0)).URI;
        QVERIFY(name != printerURI);
        bed.bus.permit();
        QCOMPARE(deviceFromUsb(list().at(0)).URI, printerURI);
        const auto record = bed.finish(RecordedSend(name, frame, timeout));
        QVERIFY2(!record.error, qPrintable(record.error.value_or(WTError()).message));
    }

    void theDriverIsBackWhenTheDataCallbackRuns()
    {
        LibraryBed bed;
        std::promise<QString> driver;
        auto seen = driver.get_future();
        WTCUSBPrinter::IOKit_sendACLWithURI(
            printerURI, frame, kACLHeadSize, timeout, {},
            [&](const auto &, const auto &) { driver.set_value(bed.bus.boundDriver()); });
        QVERIFY(bed.runUntil([&] { return seen.wait_for(0s) == std::future_status::ready; }));
        QCOMPARE(seen.get(), u"usblp"_s);
    }

    void theLogTellsCountsAndNoBytes()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"library.log"_s);
        // What is encoded looks like a placeholder.
        const QString absentURI = u"usb://Quillmark/QZ100%2B?serial=QM0001"_s;
        {
            LibraryBed bed(Faults{{.data = data(40)}}, path);
            const QByteArray secret = "correct horse battery";
            bed.finish(RecordedSend(printerURI, frame + secret, timeout));
            bed.bus.unplug();
            bed.finish(RecordedSend(absentURI, frame, timeout));
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
};

QTEST_GUILESS_MAIN(SendTests)
#include "SendTests.moc"
