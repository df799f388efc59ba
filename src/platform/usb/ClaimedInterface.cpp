#include "ClaimedInterface.h"

#include "UsbErrorGate.h"

namespace
{

// Whether the driver could be detached is not asked: if not, the claim fails.
int claimFromDriver(libusb_device_handle *handle, int interface)
{
    const bool driverIsBound = libusb_kernel_driver_active(handle, interface) == 1;
    libusb_set_auto_detach_kernel_driver(handle, driverIsBound ? 1 : 0);
    return libusb_claim_interface(handle, interface);
}

} // namespace

ClaimedInterface::ClaimedInterface(libusb_device_handle *handle, int interface)
    : m_handle(handle)
    , m_interface(interface)
    , m_claimResult(claimFromDriver(handle, interface))
{
}

ClaimedInterface::~ClaimedInterface()
{
    if (m_claimResult == LIBUSB_SUCCESS)
        libusb_release_interface(m_handle, m_interface);
}

WTResult<std::unique_ptr<ClaimedInterface>>
ClaimedInterface::claim(libusb_device_handle *handle, const PrinterInterface &interface, const QString &what)
{
    std::unique_ptr<ClaimedInterface> claimed(new ClaimedInterface(handle, interface.number));
    if (claimed->m_claimResult != LIBUSB_SUCCESS)
        return usbErrorFromLibrary(claimed->m_claimResult, what);
    if (interface.hasAlternatives) {
        const int result = libusb_set_interface_alt_setting(handle, interface.number, interface.alternateSetting);
        if (result != LIBUSB_SUCCESS)
            return usbErrorFromLibrary(result, what);
    }
    return claimed;
}
