#include "DeviceQuestions.h"

#include <QByteArray>
#include <algorithm>
#include <array>

namespace
{

constexpr unsigned timeout = 1000; // milliseconds
constexpr quint8 getDeviceID = 0;  // request of the printer class
constexpr int lengthBytes = 2;     // ahead of a device ID, and of a string descriptor's text

UsbHandle open(libusb_device *device)
{
    libusb_device_handle *handle = nullptr;
    libusb_open(device, &handle);
    return UsbHandle(handle);
}

} // namespace

DeviceQuestions::DeviceQuestions(libusb_device *device)
    : m_handle(open(device))
{
}

std::optional<QString> DeviceQuestions::text(quint8 descriptorIndex) const
{
    if (!m_handle)
        return std::nullopt;
    std::array<unsigned char, 255> answer{};
    const auto ask = [&](quint8 index, quint16 language) {
        return libusb_get_string_descriptor(m_handle.get(), index, language, answer.data(), int(answer.size()));
    };
    // Descriptor 0 lists the languages; the first one is the device's own.
    if (ask(0, 0) < lengthBytes + 2)
        return std::nullopt;
    const auto language = static_cast<quint16>(answer[2] | answer[3] << 8);
    const int size = ask(descriptorIndex, language);
    if (size < lengthBytes)
        return std::nullopt;
    QString text;
    for (std::size_t i = lengthBytes; i + 1 < static_cast<std::size_t>(size); i += 2)
        text += QChar(static_cast<char16_t>(answer.at(i) | answer.at(i + 1) << 8));
    return text.trimmed();
}

std::optional<QString> DeviceQuestions::deviceID(int interface) const
{
    if (!m_handle || libusb_claim_interface(m_handle.get(), interface) != LIBUSB_SUCCESS)
        return std::nullopt;
    std::array<unsigned char, 1024> answer{};
    const auto requestType = static_cast<quint8>(static_cast<unsigned>(LIBUSB_ENDPOINT_IN) |
                                                 static_cast<unsigned>(LIBUSB_REQUEST_TYPE_CLASS) |
                                                 static_cast<unsigned>(LIBUSB_RECIPIENT_INTERFACE));
    const int size =
        libusb_control_transfer(m_handle.get(), requestType, getDeviceID, 0, static_cast<quint16>(interface << 8),
                                answer.data(), answer.size(), timeout);
    libusb_release_interface(m_handle.get(), interface);
    if (size == LIBUSB_ERROR_PIPE)
        return QString();
    if (size < lengthBytes)
        return std::nullopt;
    // The length counts its own two bytes. Some devices give it in the wrong byte order: what came is the limit.
    const int announced = answer[0] << 8 | answer[1];
    const int end = announced < lengthBytes ? size : std::min(announced, size);
    return QString::fromUtf8(QByteArray(reinterpret_cast<const char *>(answer.data()) + lengthBytes, end - lengthBytes))
        .trimmed();
}
