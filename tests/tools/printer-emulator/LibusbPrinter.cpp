#include "LibusbPrinter.h"

namespace
{
constexpr quint16 vendorID = 0x6A1B;
constexpr quint8 outEndpoint = 0x01;
constexpr quint8 inEndpoint = 0x82;
} // namespace

LibusbPrinter::LibusbPrinter()
{
    libusb_context *context = nullptr;
    libusb_init(&context);
    m_context.reset(context);
}

bool LibusbPrinter::waitForArrival()
{
    int arrived = 0;
    const auto noteArrival = [](libusb_context *, libusb_device *, libusb_hotplug_event, void *flag) {
        *static_cast<int *>(flag) = 1;
        return 1; // No further calls.
    };
    libusb_hotplug_register_callback(m_context.get(), LIBUSB_HOTPLUG_EVENT_DEVICE_ARRIVED, LIBUSB_HOTPLUG_ENUMERATE,
                                     vendorID, LIBUSB_HOTPLUG_MATCH_ANY, LIBUSB_HOTPLUG_MATCH_ANY, noteArrival,
                                     &arrived, nullptr);
    timeval patience{10, 0};
    while (!arrived && libusb_handle_events_timeout_completed(m_context.get(), &patience, &arrived) == 0) {
        if (!arrived)
            break;
    }
    return arrived;
}

int LibusbPrinter::open()
{
    libusb_device **list = nullptr;
    const ssize_t count = libusb_get_device_list(m_context.get(), &list);
    int result = LIBUSB_ERROR_NO_DEVICE;
    for (ssize_t index = 0; index < count; ++index) {
        libusb_device_descriptor descriptor{};
        libusb_get_device_descriptor(list[index], &descriptor);
        if (descriptor.idVendor != vendorID)
            continue;
        libusb_device_handle *handle = nullptr;
        result = libusb_open(list[index], &handle);
        m_handle.reset(handle);
        break;
    }
    libusb_free_device_list(list, 1);
    return result;
}

int LibusbPrinter::write(const QByteArray &bytes, unsigned timeout, int *sent)
{
    QByteArray copy = bytes;
    int count = 0;
    const int result = libusb_bulk_transfer(m_handle.get(), outEndpoint, reinterpret_cast<unsigned char *>(copy.data()),
                                            int(copy.size()), sent ? sent : &count, timeout);
    return result;
}

int LibusbPrinter::read(QByteArray &bytes, int atMost, unsigned timeout)
{
    bytes.resize(atMost);
    int count = 0;
    const int result = libusb_bulk_transfer(m_handle.get(), inEndpoint, reinterpret_cast<unsigned char *>(bytes.data()),
                                            atMost, &count, timeout);
    bytes.truncate(count);
    return result;
}
