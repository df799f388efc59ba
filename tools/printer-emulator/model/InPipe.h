#pragma once

#include "PrinterReply.h"

#include <QByteArray>
#include <chrono>
#include <deque>
#include <optional>
#include <vector>

/// What the printer has to say, packet by packet, as a bulk IN endpoint gives it: a transfer whose length is a multiple
/// of the packet size ends with a zero-length packet. Has no clock: the caller says what time it is.
class InPipe
{
public:
    using Instant = std::chrono::steady_clock::time_point;

    enum class Outcome {
        Waiting,  ///< Nothing more is due.
        Complete, ///< The read is full, or a short packet ended it.
        Overflow, ///< A packet was larger than the room left in the read; the packet is lost.
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

    /// Whether the printer leaves the bus now, before any further packet.
    bool unplugIsDue(Instant now) const;
    bool hasDue(Instant now) const { return !m_queue.empty() && m_queue.front().due <= now; }
    /// When the next packet falls due; absent when it is due already, or when there is none.
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
