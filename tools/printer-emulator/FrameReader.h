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
/// A frame whose envelope or header is wrong ends at the next UEL.
class FrameReader
{
public:
    /// Takes bytes up to the end of the first frame among them, and says how many it took.
    qsizetype feed(QByteArrayView bytes);

    /// The frame that the last `feed` completed; absent when it is still under way.
    std::optional<ReceivedFrame> takeFrame();

    /// Cuts the frame under way off; absent when there is none.
    std::optional<ReceivedFrame> cutOff();

    /// The command code of the frame under way, once its bytes have come; 0 before.
    quint16 command() const;
    /// Bytes of the frame under way.
    qsizetype size() const { return m_bytes.size(); }

private:
    void check();
    void fail(qsizetype offset, const QString &what);

    QByteArray m_bytes;
    std::vector<FrameProblem> m_problems;
    bool m_lost = false; ///< The layout cannot be trusted any more; only a UEL ends the frame.
    bool m_complete = false;
};
