#include "UsbDescriptors.h"

#include <QtEndian>
#include <initializer_list>

namespace UsbDescriptors
{
namespace
{
enum Type : quint8 { DeviceType = 1, ConfigurationType, StringType, InterfaceType, EndpointType };

constexpr quint8 bulk = 2;
constexpr quint8 selfPowered = 0xC0;

/// Appends one descriptor, its length byte first.
void append(QByteArray &to, Type type, std::initializer_list<int> content)
{
    to.append(static_cast<char>(content.size() + 2));
    to.append(static_cast<char>(type));
    for (const int byte : content)
        to.append(static_cast<char>(byte));
}

constexpr int low(quint16 number)
{
    return number & 0xFF;
}

constexpr int high(quint16 number)
{
    return number >> 8;
}

QByteArray textDescriptor(const QString &text)
{
    QByteArray descriptor;
    append(descriptor, StringType, {});
    for (const QChar unit : text) {
        descriptor.append(static_cast<char>(low(unit.unicode())));
        descriptor.append(static_cast<char>(high(unit.unicode())));
    }
    descriptor[0] = static_cast<char>(descriptor.size());
    return descriptor;
}
} // namespace

quint8 outEndpoint(int interface)
{
    return static_cast<quint8>(2 * interface + 1);
}

quint8 inEndpoint(int interface)
{
    return static_cast<quint8>(0x80 | (2 * interface + 2));
}

QByteArray device(const ModelIdentity &identity)
{
    QByteArray descriptor;
    append(descriptor, DeviceType,
           {0x00, 0x02, 0, 0, 0, 64, low(identity.vendorID), high(identity.vendorID), low(identity.productID),
            high(identity.productID), 0x00, 0x01, Manufacturer, Product, SerialNumber, 1});
    return descriptor;
}

QByteArray configuration(const UsbShape &shape)
{
    QByteArray interfaces;
    for (int number = 0; number < static_cast<int>(shape.interfaces.size()); ++number) {
        int alternate = 0;
        for (const UsbShape::AlternateSetting &setting : shape.interfaces[number]) {
            append(interfaces, InterfaceType,
                   {number, alternate++, setting.bulkIn ? 2 : 1, setting.interfaceClass, setting.interfaceSubclass,
                    setting.protocol, 0});
            append(interfaces, EndpointType,
                   {outEndpoint(number), bulk, low(shape.packetSize), high(shape.packetSize), 0});
            if (setting.bulkIn)
                append(interfaces, EndpointType,
                       {inEndpoint(number), bulk, low(shape.packetSize), high(shape.packetSize), 0});
        }
    }
    constexpr int ownSize = 9;
    const auto total = static_cast<quint16>(ownSize + interfaces.size());
    QByteArray descriptor;
    append(descriptor, ConfigurationType,
           {low(total), high(total), static_cast<int>(shape.interfaces.size()), 1, 0, selfPowered, 1});
    return descriptor + interfaces;
}

std::optional<QByteArray> string(const ModelIdentity &identity, quint8 index)
{
    switch (index) {
    case Languages: {
        QByteArray english;
        append(english, StringType, {0x09, 0x04});
        return english;
    }
    case Manufacturer:
        return textDescriptor(identity.manufacturer);
    case Product:
        return textDescriptor(identity.product());
    case SerialNumber:
        return textDescriptor(identity.serialNumber);
    default:
        return std::nullopt;
    }
}
} // namespace UsbDescriptors
