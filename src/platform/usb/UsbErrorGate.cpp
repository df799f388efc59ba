#include "UsbErrorGate.h"

using namespace Qt::Literals::StringLiterals;

WTError usbError(const UsbCause &cause, const QString &what, const QString &why)
{
    return {usbErrorDomain, static_cast<int>(cause.code), u"%1: %2"_s.arg(what, why), cause};
}

bool isUsbError(const WTError &error, UsbErrorCode code)
{
    return error.domain == usbErrorDomain && error.code == static_cast<int>(code);
}

WTError usbErrorFromLibrary(int code, const QString &what)
{
    switch (static_cast<libusb_error>(code)) {
    case LIBUSB_ERROR_ACCESS:
        return usbError({UsbErrorCode::PermissionDenied}, what, u"permission denied"_s);
    case LIBUSB_ERROR_NO_DEVICE:
        return usbError({UsbErrorCode::Unplugged}, what, u"unplugged"_s);
    case LIBUSB_ERROR_NOT_FOUND:
        return usbError({UsbErrorCode::NotFound}, what, u"not found"_s);
    case LIBUSB_ERROR_BUSY:
        return usbError({UsbErrorCode::Busy}, what, u"held by another program"_s);
    case LIBUSB_ERROR_PIPE:
        return usbError({UsbErrorCode::Stalled}, what, u"stalled"_s);
    case LIBUSB_ERROR_OVERFLOW:
        return usbError({UsbErrorCode::Overflow}, what, u"the device sent more than was asked for"_s);
    case LIBUSB_ERROR_TIMEOUT:
        return usbError({UsbErrorCode::TimedOut}, what, u"the device did not answer"_s);
    case LIBUSB_ERROR_IO:
        return usbError({UsbErrorCode::Failed}, what, u"input or output error"_s);
    case LIBUSB_SUCCESS:
    case LIBUSB_ERROR_INVALID_PARAM:
    case LIBUSB_ERROR_INTERRUPTED:
    case LIBUSB_ERROR_NO_MEM:
    case LIBUSB_ERROR_NOT_SUPPORTED:
    case LIBUSB_ERROR_OTHER:
        break;
    }
    return usbError({UsbErrorCode::Failed}, what, QString::fromUtf8(libusb_strerror(code)));
}

std::optional<WTError> usbErrorFromTransfer(libusb_transfer_status status, const QString &what)
{
    switch (status) {
    case LIBUSB_TRANSFER_COMPLETED:
        return std::nullopt;
    case LIBUSB_TRANSFER_CANCELLED:
        return usbError({UsbErrorCode::Cancelled}, what, u"cancelled"_s);
    case LIBUSB_TRANSFER_STALL:
        return usbErrorFromLibrary(LIBUSB_ERROR_PIPE, what);
    case LIBUSB_TRANSFER_NO_DEVICE:
        return usbErrorFromLibrary(LIBUSB_ERROR_NO_DEVICE, what);
    case LIBUSB_TRANSFER_OVERFLOW:
        return usbErrorFromLibrary(LIBUSB_ERROR_OVERFLOW, what);
    case LIBUSB_TRANSFER_TIMED_OUT:
        return usbErrorFromLibrary(LIBUSB_ERROR_TIMEOUT, what);
    case LIBUSB_TRANSFER_ERROR:
        break;
    }
    return usbErrorFromLibrary(LIBUSB_ERROR_IO, what);
}
