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

constexpr quint8 printerClass = 7;
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
    const auto length = static_cast<quint16>(text.size() + reply.size());
    qToBigEndian(identity.announcedIDLength.value_or(length), reply.data());
    return reply + text + identity.behindDeviceID;
}

bool namesPrinterSetting(quint16 index, const UsbShape &shape)
{
    const std::size_t interface = index >> 8;
    const std::size_t setting = index & 0xFF;
    return interface < shape.interfaces.size() && setting < shape.interfaces[interface].size() &&
           shape.interfaces[interface][setting].interfaceClass == printerClass;
}

std::optional<QByteArray> wholeAnswer(const Setup &setup, const ModelIdentity &identity, const UsbShape &shape)
{
    if (setup.requestType == standardToHost && setup.request == getDescriptor && setup.value >> 8 == stringDescriptor)
        return UsbDescriptors::string(identity, static_cast<quint8>(setup.value));
    if (setup.asksForDeviceID())
        return namesPrinterSetting(setup.index, shape) ? deviceIDReply(identity) : std::nullopt;
    if (setup.requestType == printerToHost && setup.request == getPortStatus)
        return QByteArray(1, selectedNoError);
    return setup.requestType & toHost ? std::nullopt : std::optional(QByteArray());
}
} // namespace

Setup Setup::parse(QByteArrayView bytes)
{
    const auto number = [&bytes](qsizetype offset) { return qFromLittleEndian<quint16>(bytes.data() + offset); };
    return {static_cast<quint8>(bytes[0]), static_cast<quint8>(bytes[1]), number(2), number(4), number(6)};
}

bool Setup::asksForDeviceID() const
{
    return requestType == printerToHost && request == getDeviceID;
}

std::optional<int> Setup::interfaceToClaim(const UsbShape &shape) const
{
    if ((requestType & recipientMask) != recipientInterface || (asksForDeviceID() && namesPrinterSetting(index, shape)))
        return std::nullopt;
    return index & 0xFF;
}

std::optional<QByteArray> answer(const Setup &setup, const ModelIdentity &identity, const UsbShape &shape)
{
    const std::optional<QByteArray> whole = wholeAnswer(setup, identity, shape);
    return whole ? std::optional(whole->first(std::min<qsizetype>(whole->size(), setup.length))) : std::nullopt;
}
} // namespace ControlPipe
