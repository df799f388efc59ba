#include "FrameReader.h"
#include "Rows.h"

#include <QtEndian>

using namespace Qt::Literals::StringLiterals;

namespace
{

// Command frames as bytes, built a second time, so that the emulator and the product cannot agree on the same mistake.

QByteArray header(quint16 command, qsizetype length)
{
    QByteArray bytes = QByteArray::fromHex("00AC000000000000"
                                           "0000000000000000");
    qToBigEndian(command, bytes.data() + 2);
    qToBigEndian(quint16(length), bytes.data() + 4);
    return bytes;
}

QByteArray enveloped(const QByteArray &acl)
{
    return "\x1B%-12345X@PJL ENTER LANGUAGE=ACL\r\n" + acl + "\x1B%-12345X";
}

QByteArray shortFrame(quint16 command, const QByteArray &payload = {})
{
    return enveloped(header(command, payload.size()) + payload);
}

QByteArray configuration(const QByteArray &networkName, const QByteArray &password)
{
    const QByteArray payload = networkName.leftJustified(33, '\0') + '\x05' + password.leftJustified(31, '\0');
    return shortFrame(0xFF80, payload.leftJustified(208, '\0'));
}

/// What the reader says of each frame of a stream that comes in slices of that size.
QString verdicts(const QByteArray &stream, qsizetype sliceSize)
{
    FrameReader reader;
    QStringList verdicts;
    QByteArray joined;
    const auto take = [&](const std::optional<ReceivedFrame> &frame) {
        if (!frame)
            return;
        verdicts.append(u"%1 %2"_s.arg(frame->command, 4, 16, QLatin1Char('0')).arg(frame->verdict()));
        joined += frame->bytes;
    };
    for (qsizetype offset = 0; offset < stream.size(); offset += sliceSize) {
        const QByteArray piece = stream.mid(offset, sliceSize);
        QByteArrayView slice = piece;
        while (!slice.isEmpty()) {
            slice = slice.sliced(reader.feed(slice));
            take(reader.takeFrame());
        }
    }
    take(reader.cutOff());
    return joined == stream ? verdicts.join(u" | "_s) : u"bytes are lost"_s;
}

QByteArray changed(QByteArray frame, qsizetype offset, char byte)
{
    frame[offset] = byte;
    return frame;
}

} // namespace

/// Every stream is read whole and byte by byte, with the same frames and verdicts.
class FrameReaderTests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void judgesEveryByte()
    {
        const QByteArray wakeUp = shortFrame(0xFF21);
        const QByteArray network = configuration("Office", "secret-1");
        const QByteArray exit = QByteArray("\x1B%-12345X");
        eachRow(
            {
                {"password that looks like an envelope", configuration("A", exit) + wakeUp,
                 u"ff80 sound | ff21 sound"_s},
                {"opening UEL", changed(wakeUp, 3, 'x') + wakeUp,
                 u"0000 at 3: not the opening UEL | 0000 at 9: not the enter line | ff21 sound"_s},
                {"encryption byte", enveloped('\0' + wakeUp.sliced(34, 16)) + wakeUp,
                 u"0000 at 35: not the ACL magic | ff21 sound"_s},
                {"unknown code", shortFrame(0xFF99), u"ff99 at 36: unknown command"_s},
                {"long header", enveloped(QByteArray::fromHex("00ACFF21000000030000000061626300FF")) + wakeUp,
                 u"ff21 at 41: not zero in the header | ff21 sound"_s},
                {"closing UEL", changed(wakeUp, 58, 'Y') + exit + wakeUp,
                 u"ff21 at 58: not the closing UEL | ff21 sound"_s},
                {"cut off", network.first(100), u"ff80 at 100: cut off"_s},
                {"no name", configuration({}, "p"), u"ff80 at 50: no network name"_s},
                {"byte after the name", changed(network, 50 + 32, 'x'),
                 u"ff80 at 82: not zero after the network name"_s},
                {"not 5", changed(network, 50 + 33, '\x04'), u"ff80 at 83: not 5 between name and password"_s},
                {"password of 32 bytes", changed(configuration("A", QByteArray(31, 'p')), 50 + 65, 'p'),
                 u"ff80 at 115: not zero at the end of the payload"_s},
            },
            [&](const QByteArray &stream, const QString &expected) {
                for (const qsizetype sliceSize : {stream.size(), qsizetype{1}})
                    QCOMPARE(verdicts(stream, sliceSize), expected);
            });
    }
};

QTEST_GUILESS_MAIN(FrameReaderTests)
#include "FrameReaderTests.moc"
