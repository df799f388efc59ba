#include "FrameReader.h"
#include "TestFrames.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace TestFrames;

namespace
{
std::vector<ReceivedFrame> readInSlices(const QByteArray &stream, const std::vector<qsizetype> &sizes)
{
    FrameReader reader;
    std::vector<ReceivedFrame> frames;
    qsizetype offset = 0;
    for (std::size_t index = 0; offset < stream.size(); ++index) {
        const qsizetype size = std::min(sizes[index % sizes.size()], stream.size() - offset);
        QByteArrayView slice = QByteArrayView(stream).sliced(offset, size);
        while (!slice.isEmpty()) {
            slice = slice.sliced(reader.feed(slice));
            if (auto frame = reader.takeFrame())
                frames.push_back(*std::move(frame));
        }
        offset += size;
    }
    if (auto frame = reader.cutOff())
        frames.push_back(*std::move(frame));
    return frames;
}

QByteArray changed(QByteArray frame, qsizetype offset, char byte)
{
    frame[offset] = byte;
    return frame;
}

QString verdicts(const std::vector<ReceivedFrame> &frames)
{
    QStringList verdicts;
    for (const ReceivedFrame &frame : frames)
        verdicts.append(u"%1 %2"_s.arg(frame.command, 4, 16, QLatin1Char('0')).arg(frame.verdict()));
    return verdicts.join(u" | "_s);
}
} // namespace

/// Every stream is read whole, byte by byte and in random slices, with the same frames and verdicts.
class FrameReaderTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesEveryByte_data();
    void judgesEveryByte();
    void quotesNoPayload();
};

void FrameReaderTests::judgesEveryByte_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QString>("expected");

    const QByteArray wakeUp = shortFrame(0xFF21);
    const QByteArray network = configuration("Office", "secret-1");
    const QByteArray exit = QByteArray("\x1B%-12345X");

    QTest::newRow("wake-up") << wakeUp << u"ff21 sound"_s;
    QTest::newRow("two in a row") << wakeUp + shortFrame(0xFF81) << u"ff21 sound | ff81 sound"_s;
    QTest::newRow("configuration") << network << u"ff80 sound"_s;
    QTest::newRow("full fields") << configuration(QByteArray(32, 'n'), QByteArray(31, 'p')) << u"ff80 sound"_s;
    QTest::newRow("empty password") << configuration("Open", {}) << u"ff80 sound"_s;
    QTest::newRow("password that looks like an envelope")
        << configuration("A", exit) + wakeUp << u"ff80 sound | ff21 sound"_s;
    QTest::newRow("page with payload") << shortFrame(0xFF84, QByteArray("\x00\x02", 2)) << u"ff84 sound"_s;
    QTest::newRow("page without payload") << informationPageWithoutPayload() + wakeUp << u"ff84 sound | ff21 sound"_s;

    QTest::newRow("opening UEL") << changed(wakeUp, 3, 'x') + wakeUp
                                 << u"0000 at 3: not the opening UEL | 0000 at 9: not the enter line | ff21 sound"_s;
    QTest::newRow("leading garbage") << "garbage" + wakeUp << u"0000 at 0: not the opening UEL | ff21 sound"_s;
    QTest::newRow("enter line") << changed(wakeUp, 32, ' ') + wakeUp
                                << u"0000 at 32: not the enter line | ff21 sound"_s;
    QTest::newRow("encryption byte") << enveloped('\0' + wakeUp.sliced(34, 16)) + wakeUp
                                     << u"0000 at 35: not the ACL magic | ff21 sound"_s;
    QTest::newRow("magic") << changed(wakeUp, 35, '\xAD') << u"0000 at 35: not the ACL magic"_s;
    QTest::newRow("unknown code") << shortFrame(0xFF99) << u"ff99 at 36: unknown command"_s;
    QTest::newRow("length for nothing") << shortFrame(0xFF81, "abc")
                                        << u"ff81 at 38: not the command's payload length"_s;
    QTest::newRow("long header") << enveloped(QByteArray::fromHex("00ACFF21000000030000000061626300FF")) + wakeUp
                                 << u"ff21 at 41: not zero in the header | ff21 sound"_s;
    QTest::newRow("zeros") << changed(wakeUp, 49, '\x01') << u"ff21 at 49: not zero in the header"_s;
    QTest::newRow("closing UEL") << changed(wakeUp, 58, 'Y') + exit + wakeUp
                                 << u"ff21 at 58: not the closing UEL | ff21 sound"_s;
    QTest::newRow("cut off") << network.first(100) << u"ff80 at 100: cut off"_s;

    QTest::newRow("no name") << configuration({}, "p") << u"ff80 at 50: no network name"_s;
    QTest::newRow("byte after the name") << changed(network, 50 + 32, 'x')
                                         << u"ff80 at 82: not zero after the network name"_s;
    QTest::newRow("not 5") << changed(network, 50 + 33, '\x04') << u"ff80 at 83: not 5 between name and password"_s;
    QTest::newRow("byte after the password")
        << changed(network, 50 + 60, 'x') << u"ff80 at 110: not zero after the password"_s;
    QTest::newRow("password of 32 bytes") << changed(configuration("A", QByteArray(31, 'p')), 50 + 65, 'p')
                                          << u"ff80 at 115: not zero at the end of the payload"_s;
    QTest::newRow("last payload byte") << changed(network, 50 + 207, '\x01')
                                       << u"ff80 at 257: not zero at the end of the payload"_s;
    QTest::newRow("page payload") << shortFrame(0xFF84, QByteArray("\x02\x00", 2)) << u"ff84 at 50: not 00 02"_s;
}

void FrameReaderTests::judgesEveryByte()
{
    QFETCH(const QByteArray, stream);
    QFETCH(const QString, expected);

    QCOMPARE(verdicts(readInSlices(stream, {stream.size()})), expected);
    QCOMPARE(verdicts(readInSlices(stream, {1})), expected);
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int round = 0; round < 20; ++round) {
        std::vector<qsizetype> sizes(10);
        std::ranges::generate(sizes, [&random] { return random.bounded(1, 60); });
        const std::vector<ReceivedFrame> frames = readInSlices(stream, sizes);
        QVERIFY2(verdicts(frames) == expected, qPrintable(u"seed %1, round %2"_s.arg(seed).arg(round)));
        QByteArray joined;
        for (const ReceivedFrame &frame : frames)
            joined += frame.bytes;
        QCOMPARE(joined, stream);
    }
}

void FrameReaderTests::quotesNoPayload()
{
    for (qsizetype offset = 50; offset < 50 + 208; ++offset) {
        const QByteArray frame = changed(configuration("Office", "secret-1"), offset, 'Q');
        QVERIFY(!verdicts(readInSlices(frame, {frame.size()})).contains(u'Q'));
        QVERIFY(!verdicts(readInSlices(frame, {frame.size()})).contains(u"secret"));
    }
}

QTEST_GUILESS_MAIN(FrameReaderTests)
#include "FrameReaderTests.moc"
