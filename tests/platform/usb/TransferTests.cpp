#include "PrinterBed.h"
#include "Rows.h"

#include <QRandomGenerator>
#include <span>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

class TransferTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aReplyInAnySlices()
    {
        using Slices = std::vector<qsizetype>;
        QRandomGenerator random(20);
        for (const int packetSize : {64, 512}) {
            std::vector<std::pair<int, Slices>> replies{{4, {0, 0, 7, 0, 9, 0, 4, 0}}, {4, Slices(20, 1)}, {65000, {}}};
            replies.resize(23);
            for (auto &[dataSize, slices] : std::span(replies).subspan(3)) {
                dataSize = random.bounded(1, 2000);
                for (qsizetype rest = dataSize + 16; rest > 0; rest -= slices.back())
                    slices.push_back(random.bounded(0, int(std::min<qsizetype>(rest, 200)) + 1));
            }
            UsbShape shape;
            shape.packetSize = quint16(packetSize);
            PrinterBed bed({}, shape);
            for (const auto &[dataSize, slices] : replies) {
                PrinterFault fault;
                fault.data = someData(dataSize);
                fault.slices = slices;
                bed.answer(fault);
                QByteArray slicing = "slices:";
                for (const qsizetype slice : slices)
                    slicing += ' ' + QByteArray::number(slice);

                const auto connection = bed.connect();
                QVERIFY(!bed.write(*connection));
                QByteArray header;
                QByteArray data;
                const auto headerFailure = bed.read(*connection, 16, header);
                const auto dataFailure = bed.read(*connection, dataSize, data);
                QVERIFY2(!headerFailure && !dataFailure, slicing);
                QVERIFY2(header.startsWith(QByteArray::fromHex("00ACFF21")), slicing);
                QVERIFY2(data == someData(dataSize), slicing);
            }
        }
    }

    void cancelEndsTheTransferAndAllLaterOnes()
    {
        const int cancelled = code(UsbErrorCode::Cancelled);
        eachRow(
            {
                {"while writing", {.acceptOnly = 10}, cancelled, 0},
                {"while reading, a whole packet came", {.cutAt = 64}, 0, 64},
            },
            [&](PrinterFault fault, int written, int received) {
                fault.data = someData(100);
                UsbShape shape;
                shape.packetSize = 64;
                PrinterBed bed(fault, shape);
                const auto connection = bed.connect();
                const auto cancel = bed.time.after(1s, [&] { connection->cancel(); });
                QCOMPARE(codeOf(bed.write(*connection)), written);
                QByteArray reply;
                QCOMPARE(codeOf(bed.read(*connection, 116, reply)), code(UsbErrorCode::Cancelled));
                QCOMPARE(reply.size(), received);
                QCOMPARE(codeOf(bed.write(*connection)), code(UsbErrorCode::Cancelled));
                QCOMPARE(codeOf(bed.read(*connection, 116, reply)), code(UsbErrorCode::Cancelled));
            });
    }

    void drainedInputIsGone()
    {
        PrinterFault fault;
        fault.occurrence = 1;
        fault.trailingGarbage = QByteArray(5000, 'x');
        fault.slices = {16, 1000, 0, 7};
        PrinterBed bed(fault);
        const auto connection = bed.connect();
        QVERIFY(!bed.write(*connection));
        QByteArray reply;
        QVERIFY(!bed.read(*connection, 16, reply));
        QCOMPARE(bed.await([&] { return connection->drainInput(); }), fault.trailingGarbage);
        QVERIFY(!bed.write(*connection));
        QByteArray second;
        QVERIFY(!bed.read(*connection, 16, second));
        QCOMPARE(second, reply);
    }
};

QTEST_GUILESS_MAIN(TransferTests)
#include "TransferTests.moc"
