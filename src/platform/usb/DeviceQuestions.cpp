#include "DeviceQuestions.h"

#include "UsbHandles.h"

#include <QByteArray>
#include <algorithm>
#include <array>

namespace
{

constexpr unsigned timeout = 1000; // milliseconds
constexpr quint8 getDeviceID = 0;  // request of the printer class
constexpr int lengthBytes = 2;     // ahead of the ID

UsbHandle open(libusb_device *device)
{
    libusb_device_handle *handle = nullptr;
    libusb_open(device, &handle);
    return UsbHandle(handle);
}

bool wasPut(int result)
{
    return result != LIBUSB_ERROR_NO_DEVICE && result != LIBUSB_ERROR_BUSY && result != LIBUSB_ERROR_INTERRUPTED &&
           result != LIBUSB_ERROR_NO_MEM;
}

} // namespace

std::optional<QString> askDeviceID(libusb_device *device, const PrinterInterface &interface)
{
    const UsbHandle handle = open(device);
    if (!handle)
        return std::nullopt;
    std::array<unsigned char, 1024> answer{};
    const auto requestType = static_cast<quint8>(static_cast<unsigned>(LIBUSB_ENDPOINT_IN) |
                                                 static_cast<unsigned>(LIBUSB_REQUEST_TYPE_CLASS) |
                                                 static_cast<unsigned>(LIBUSB_RECIPIENT_INTERFACE));
    // Other class requests name the interface in the low byte of the index. With this one the kernel asks for a claim
    // unless both bytes name a setting of the printer class.
    const auto index = static_cast<quint16>(interface.number << 8 | interface.alternateSetting);
    const int size = libusb_control_transfer(handle.get(), requestType, getDeviceID, 0, index, answer.data(),
                                             answer.size(), timeout);
    if (!wasPut(size))
        return std::nullopt;
    if (size < lengthBytes)
        return QString();
    // The length counts its own two bytes. Some devices give it in the wrong byte order: what came is the limit.
    const int announced = answer[0] << 8 | answer[1];
    const int end = announced < lengthBytes ? size : std::min(announced, size);
    return QString::fromUtf8(QByteArray(reinterpret_cast<const char *>(answer.data()) + lengthBytes, end - lengthBytes))
        .trimmed();
}
