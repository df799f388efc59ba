#include "TestFrames.h"

#include <QtEndian>

namespace TestFrames
{
namespace
{
QByteArray header(quint16 command, qsizetype length)
{
    QByteArray bytes = QByteArray::fromHex("00AC000000000000"
                                           "0000000000000000");
    qToBigEndian(command, bytes.data() + 2);
    qToBigEndian(quint16(length), bytes.data() + 4);
    return bytes;
}
} // namespace

QByteArray enveloped(const QByteArray &acl)
{
    return "\x1B%-12345X@PJL ENTER LANGUAGE=ACL\r\n" + acl + "\x1B%-12345X";
}

QByteArray shortFrame(quint16 command, const QByteArray &payload)
{
    return enveloped(header(command, payload.size()) + payload);
}

QByteArray configuration(const QByteArray &networkName, const QByteArray &password)
{
    const QByteArray payload = networkName.leftJustified(33, '\0') + '\x05' + password.leftJustified(31, '\0');
    return shortFrame(0xFF80, payload.leftJustified(208, '\0'));
}

QByteArray informationPageWithoutPayload()
{
    return enveloped(header(0xFF84, 2));
}
} // namespace TestFrames
