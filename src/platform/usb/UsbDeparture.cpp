#include "UsbDeparture.h"

#include "TimePort.h"
#include "UsbErrorGate.h"

namespace
{

constexpr TimePort::Duration longestDeparture{1000};
constexpr TimePort::Duration betweenLooks{50};

// Any question that the kernel answers by itself would do. It knows earlier than udev, and with it libusb's list.
bool hasLeft(libusb_device_handle *handle, int interface)
{
    return libusb_kernel_driver_active(handle, interface) == LIBUSB_ERROR_NO_DEVICE;
}

} // namespace

WTError unlessUnplugged(const WTError &error, const QString &what, TimePort &time, libusb_device_handle *handle,
                        int interface)
{
    if (!isUsbError(error, UsbErrorCode::Stalled) && !isUsbError(error, UsbErrorCode::Failed))
        return error;
    for (auto waited = TimePort::Duration::zero(); !hasLeft(handle, interface); waited += betweenLooks) {
        if (waited >= longestDeparture)
            return error;
        time.sleep(betweenLooks);
    }
    return usbErrorFromLibrary(LIBUSB_ERROR_NO_DEVICE, what);
}
