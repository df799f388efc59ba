#include "AclReplyHeader.h"

#include "TextFormat.h"
#include "WTCUSBPrinter.h"

bool AclReplyHeader::isWhole() const
{
    return m_bytes.size() == kACLHeadSize;
}

quint16 AclReplyHeader::addedLengthBytes() const
{
    return static_cast<quint16>(byte(6) + byte(7));
}

quint8 AclReplyHeader::byte(qsizetype offset) const
{
    return offset < m_bytes.size() ? static_cast<quint8>(m_bytes.at(offset)) : 0;
}

quint16 AclReplyHeader::number(qsizetype offset) const
{
    return static_cast<quint16>(byte(offset) << 8 | byte(offset + 1));
}

std::optional<QString> describeReplyHeader(const std::optional<QByteArray> &header)
{
    if (!header)
        return std::nullopt;
    const AclReplyHeader reply{*header};
    return formatText("{length = %ld, command = 0x%04X, result = 0x%04X, data = %hu}", header->size(), reply.command(),
                      reply.result(), reply.dataLength());
}

std::optional<QString> describeReplyData(const std::optional<QByteArray> &data)
{
    return data ? std::optional(formatText("{length = %ld}", data->size())) : std::nullopt;
}
