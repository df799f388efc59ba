#include "WTCommand.h"

#include "AclFrame.h"
#include "PjlEnvelope.h"

using namespace AclFrame;

namespace
{

QByteArray withChecksum(const QByteArray &frame)
{
    return frame + bytesOf(Checksum{WTCommand::CRC16(frame)});
}

bool isEncrypted(quint8 encrypt)
{
    return encrypt != PjlEnvelope::noEncryption;
}

} // namespace

QByteArray WTCommand::ACLWithCMD(quint16 cmd)
{
    return ACLWithCMD(cmd, std::nullopt);
}

QByteArray WTCommand::ACLWithCMD(quint16 cmd, const Bytes &data)
{
    const QByteArray payload = data.value_or(QByteArray());
    ShortHeader header;
    header.command = cmd;
    header.payloadLength = static_cast<quint16>(payload.size());
    return bytesOf(header) + payload;
}

QByteArray WTCommand::ACLWithCMD(quint16 cmd, const Bytes &data, [[maybe_unused]] bool autoCRC16)
{
    const QByteArray payload = data.value_or(QByteArray());
    LongHeader header;
    header.command = cmd;
    header.payloadLength = static_cast<quint32>(payload.size());
    return withChecksum(bytesOf(header) + payload);
}

QByteArray WTCommand::ACLWithHeader(const Bytes &header, const Bytes &data)
{
    return ACLWithHeader(header, data, false);
}

QByteArray WTCommand::ACLWithHeader(const Bytes &header, const Bytes &data, bool autoCRC16)
{
    const QByteArray frame = header.value_or(QByteArray()) + data.value_or(QByteArray());
    return autoCRC16 ? withChecksum(frame) : frame;
}

QByteArray WTCommand::PJLWithACLData(const Bytes &data)
{
    return PJLWithACLData(data, PjlEnvelope::noEncryption);
}

QByteArray WTCommand::PJLWithACLData(const Bytes &data, quint8 encrypt)
{
    QByteArray envelope;
    envelope.append(PjlEnvelope::universalExitLanguage);
    envelope.append(PjlEnvelope::enterAclLanguage);
    if (isEncrypted(encrypt))
        envelope.append(static_cast<char>(encrypt));
    envelope.append(data.value_or(QByteArray()));
    envelope.append(PjlEnvelope::universalExitLanguage);
    return envelope;
}

QByteArray WTCommand::PJLWithCMD(quint16 cmd)
{
    return PJLWithCMD(cmd, std::nullopt);
}

QByteArray WTCommand::PJLWithCMD(quint16 cmd, const Bytes &data)
{
    return PJLWithACLData(ACLWithCMD(cmd, data), PjlEnvelope::noEncryption);
}

QByteArray WTCommand::PJLWithCMD(quint16 cmd, const Bytes &data, quint8 encrypt)
{
    return PJLWithACLData(ACLWithCMD(cmd, data, isEncrypted(encrypt)), encrypt);
}

QByteArray WTCommand::PJLWithHeader(const Bytes &header, const Bytes &data)
{
    return PJLWithHeader(header, data, PjlEnvelope::noEncryption);
}

QByteArray WTCommand::PJLWithHeader(const Bytes &header, const Bytes &data, quint8 encrypt)
{
    return PJLWithACLData(ACLWithHeader(header, data, isEncrypted(encrypt)), encrypt);
}

quint16 WTCommand::CRC16(const QByteArray &data)
{
    constexpr quint16 initialValue = 0xFFFF;
    constexpr quint16 reflectedPolynomial = 0xA001;

    // The printers keep the number of bytes in eight bits. So the checksum of data with more than 255 bytes covers only
    // the first (size modulo 256) of them.
    const auto count = static_cast<quint8>(data.size());
    quint16 crc = initialValue;
    for (const char byte : QByteArrayView{data}.first(count)) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) ? (crc >> 1) ^ reflectedPolynomial : crc >> 1;
    }
    return crc;
}
