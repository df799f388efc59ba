#pragma once

#include "PrinterReply.h"

#include <QByteArray>
#include <chrono>
#include <deque>
#include <optional>
#include <vector>

/// What the printer has to say, packet by packet, as a bulk IN endpoint gives it: a transfer whose length is a multiple
/// of the packet size ends with a zero-length packet. Knows time only as a value.
class InPipe
{
public:
    using Instant = std::chrono::steady_clock::time_point;

    enum class Outcome {
        Waiting,  ///< Nothing more is due.
        Complete, ///< The read is full, or a short packet ended it.
        Overflow, ///< A packet was larger than the room left; it is lost.
        Stalled,  ///< The endpoint halts.
    };

    explicit InPipe(qsizetype packetSize)
        : m_packetSize(packetSize)
    {
    }

    void push(const std::vector<InTransfer> &transfers, Instant now);
    void clear() { m_queue.clear(); }

    /// Continues a read of `atMost` bytes, of which `bytes` holds what has come so far.
    Outcome read(QByteArray &bytes, qsizetype atMost, Instant now);

    /// The next thing the printer does is to leave the bus, now.
    bool unplugIsDue(Instant now) const;
    bool hasDue(Instant now) const { return !m_queue.empty() && m_queue.front().due <= now; }
    /// When the next thing falls due that is not due yet.
    std::optional<Instant> nextDue(Instant now) const;

private:
    struct Packet {
        Instant due;
        InTransfer::Kind kind;
        QByteArray bytes;
    };

    qsizetype m_packetSize;
    std::deque<Packet> m_queue;
};
