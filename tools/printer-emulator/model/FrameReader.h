#pragma once

#include "ReceivedFrame.h"

#include <QByteArrayView>
#include <optional>

/// Cuts a stream of bytes, in whatever slices it comes, into command frames and checks each byte of them:
///
///     UEL (9) | "@PJL ENTER LANGUAGE=ACL\r\n" (25) | ACL header (16) | payload (n) | UEL (9)
///
///     header: 00 AC | code (2) | n (2) | ten zeros, numbers big endian
///
/// The information page has two dialects: n is 2, and the payload 00 02 follows or is left out. A frame whose envelope
/// or header is wrong ends at the next UEL (the "universal exit language" bytes).
class FrameReader
{
public:
    /// Takes bytes up to the end of the first frame among them, and answers how many it took.
    qsizetype feed(QByteArrayView bytes);

    /// The frame that the last `feed` completed; absent when it is still under way.
    std::optional<ReceivedFrame> takeFrame();

    /// Ends the frame under way where it stands; absent when there is none.
    std::optional<ReceivedFrame> cutOff();

    /// The command code of the frame under way, once it has come; 0 before.
    quint16 command() const { return m_frame.command; }
    /// Bytes of the frame under way.
    qsizetype size() const { return m_frame.bytes.size(); }

private:
    void checkLastByte();
    void checkHeaderByte(qsizetype offset);
    void payloadByte(qsizetype offset);
    void payloadComplete();
    void lose(qsizetype offset, const QString &what);
    void complete(qsizetype length);
    quint8 byteAt(qsizetype offset) const { return static_cast<quint8>(m_frame.bytes[offset]); }
    quint16 numberAt(qsizetype offset) const { return static_cast<quint16>(byteAt(offset) << 8 | byteAt(offset + 1)); }

    ReceivedFrame m_frame;
    qsizetype m_payloadSize = 0;
    std::optional<qsizetype> m_lostAt; ///< Where the layout broke; from there on only a UEL ends the frame.
    std::optional<ReceivedFrame> m_completed;
};
