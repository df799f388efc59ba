#include "BareExchange.h"

#include "AclReplyHeader.h"
#include "WTCUSBPrinter.h"

#include <array>

namespace
{

constexpr unsigned char outEndpoint = 0x01, inEndpoint = 0x82;
constexpr int packetSize = 512;
constexpr unsigned timeLimit = 5000; // Milliseconds.

int checked(int result)
{
    if (result < 0)
        qFatal("libusb: %s", libusb_error_name(result));
    return result;
}

} // namespace

BareExchange::BareExchange(quint16 vendorID, quint16 productID)
    : m_vendorID(vendorID)
    , m_productID(productID)
{
    libusb_context *context = nullptr;
    checked(libusb_init(&context));
    m_context.reset(context);
}

QByteArray BareExchange::run(const QByteArray &frame)
{
    libusb_device_handle *handle = open();
    checked(libusb_set_auto_detach_kernel_driver(handle, 1));
    checked(libusb_claim_interface(handle, 0));
    QByteArray sent = frame;
    int transferred = 0;
    checked(libusb_bulk_transfer(handle, outEndpoint, reinterpret_cast<unsigned char *>(sent.data()), int(sent.size()),
                                 &transferred, timeLimit));
    QByteArray reply = read(handle);
    const qsizetype announced = AclReplyHeader(reply.left(kACLHeadSize)).dataLength();
    while (reply.size() < kACLHeadSize + announced)
        reply += read(handle);
    checked(libusb_release_interface(handle, 0));
    libusb_close(handle);
    return reply;
}

libusb_device_handle *BareExchange::open()
{
    libusb_device **devices = nullptr;
    const auto count = libusb_get_device_list(m_context.get(), &devices);
    libusb_device_handle *handle = nullptr;
    for (ssize_t index = 0; index < count && !handle; ++index) {
        libusb_device_descriptor descriptor{};
        checked(libusb_get_device_descriptor(devices[index], &descriptor));
        if (descriptor.idVendor == m_vendorID && descriptor.idProduct == m_productID)
            checked(libusb_open(devices[index], &handle));
    }
    libusb_free_device_list(devices, 1);
    if (!handle)
        qFatal("No printer on the bus.");
    return handle;
}

QByteArray BareExchange::read(libusb_device_handle *handle)
{
    std::array<unsigned char, packetSize> buffer{};
    int transferred = 0;
    checked(libusb_bulk_transfer(handle, inEndpoint, buffer.data(), int(buffer.size()), &transferred, timeLimit));
    return {reinterpret_cast<const char *>(buffer.data()), transferred};
}
