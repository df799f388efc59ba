#include "InPipe.h"

#include <algorithm>

void InPipe::push(const std::vector<InTransfer> &transfers, Instant now)
{
    Instant due = m_queue.empty() ? now : std::max(now, m_queue.back().due);
    for (const InTransfer &transfer : transfers) {
        due += transfer.delay;
        qsizetype offset = 0;
        if (transfer.kind == InTransfer::Kind::Data) {
            for (; transfer.bytes.size() - offset >= m_packetSize; offset += m_packetSize)
                m_queue.push_back({due, transfer.kind, transfer.bytes.sliced(offset, m_packetSize)});
        }
        m_queue.push_back({due, transfer.kind, transfer.bytes.sliced(offset)});
    }
}

InPipe::Outcome InPipe::read(QByteArray &bytes, qsizetype atMost, Instant now)
{
    while (hasDue(now) && !unplugIsDue(now)) {
        const Packet packet = std::move(m_queue.front());
        m_queue.pop_front();
        if (packet.kind == InTransfer::Kind::Stall)
            return Outcome::Stalled;
        if (packet.bytes.size() > atMost - bytes.size())
            return Outcome::Overflow;
        bytes.append(packet.bytes);
        if (packet.bytes.size() < m_packetSize || bytes.size() == atMost)
            return Outcome::Complete;
    }
    return Outcome::Waiting;
}

bool InPipe::unplugIsDue(Instant now) const
{
    return hasDue(now) && m_queue.front().kind == InTransfer::Kind::Unplug;
}

std::optional<InPipe::Instant> InPipe::nextDue(Instant now) const
{
    if (m_queue.empty() || m_queue.front().due <= now)
        return std::nullopt;
    return m_queue.front().due;
}
