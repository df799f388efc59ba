#include "UsbContext.h"

UsbContext::UsbContext() = default;

UsbContext::~UsbContext()
{
    if (m_context)
        libusb_exit(m_context);
}

libusb_context *UsbContext::obtain()
{
    const std::lock_guard lock(m_mutex);
    if (!m_context) {
        libusb_context *context = nullptr;
        if (libusb_init(&context) == LIBUSB_SUCCESS)
            m_context = context;
    }
    return m_context;
}

std::vector<UsbDeviceReference> UsbContext::devices()
{
    std::vector<UsbDeviceReference> devices;
    libusb_context *const context = obtain();
    if (!context)
        return devices;
    libusb_device **list = nullptr;
    const auto count = libusb_get_device_list(context, &list);
    for (ssize_t i = 0; i < count; ++i)
        devices.emplace_back(list[i]);
    // Only the list goes: its references live on in `devices`.
    if (count >= 0)
        libusb_free_device_list(list, 0);
    return devices;
}

UsbConfiguration activeConfiguration(libusb_device *device)
{
    libusb_config_descriptor *configuration = nullptr;
    libusb_get_active_config_descriptor(device, &configuration);
    return UsbConfiguration(configuration);
}
