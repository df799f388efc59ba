#include "ControlPipe.h"

#include "UsbDescriptors.h"

#include <QtEndian>

namespace ControlPipe
{
namespace
{
constexpr quint8 toHost = 0x80;
constexpr quint8 standardToHost = 0x80;
constexpr quint8 printerToHost = 0xA1; ///< Class request to an interface.
constexpr quint8 recipientMask = 0x1F;
constexpr quint8 recipientInterface = 1;

constexpr quint8 getDescriptor = 6;
constexpr quint8 stringDescriptor = 3;
constexpr quint8 getDeviceID = 0;
constexpr quint8 getPortStatus = 1;
constexpr char selectedNoError = 0x18;

std::optional<QByteArray> deviceIDReply(const ModelIdentity &identity)
{
    const QByteArray text = identity.deviceID();
    if (text.isEmpty())
        return std::nullopt;
    QByteArray reply(2, '\0');
    qToBigEndian(quint16(text.size() + reply.size()), reply.data());
    return reply + text;
}

std::optional<QByteArray> wholeAnswer(const Setup &setup, const ModelIdentity &identity)
{
    if (setup.requestType == standardToHost && setup.request == getDescriptor && setup.value >> 8 == stringDescriptor)
        return UsbDescriptors::string(identity, quint8(setup.value));
    if (setup.requestType == printerToHost && setup.request == getDeviceID)
        return deviceIDReply(identity);
    if (setup.requestType == printerToHost && setup.request == getPortStatus)
        return QByteArray(1, selectedNoError);
    return setup.requestType & toHost ? std::nullopt : std::optional(QByteArray());
}
} // namespace

Setup Setup::parse(QByteArrayView bytes)
{
    const auto number = [&bytes](qsizetype offset) { return qFromLittleEndian<quint16>(bytes.data() + offset); };
    return {quint8(bytes[0]), quint8(bytes[1]), number(2), number(4), number(6)};
}

std::optional<int> Setup::interfaceToClaim() const
{
    if ((requestType & recipientMask) != recipientInterface || (requestType == printerToHost && request == getDeviceID))
        return std::nullopt;
    return index & 0xFF;
}

std::optional<QByteArray> answer(const Setup &setup, const ModelIdentity &identity)
{
    const std::optional<QByteArray> whole = wholeAnswer(setup, identity);
    return whole ? std::optional(whole->first(std::min<qsizetype>(whole->size(), setup.length))) : std::nullopt;
}
} // namespace ControlPipe
