#include "LibraryError.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

WTCErrorCode codeOf(UsbErrorCode code)
{
    switch (code) {
    case UsbErrorCode::NotFound:
    case UsbErrorCode::PermissionDenied:
    case UsbErrorCode::Busy:
    case UsbErrorCode::Unplugged:
        return WTCErrorCode::Unreachable;
    case UsbErrorCode::TimedOut:
        return WTCErrorCode::TimedOut;
    case UsbErrorCode::Stalled:
    case UsbErrorCode::Cancelled:
    case UsbErrorCode::Overflow:
    case UsbErrorCode::Failed:
        break;
    }
    return WTCErrorCode::TransferFailed;
}

} // namespace

WTError libraryError(WTCErrorCode code, const QString &URI, const QString &why, const std::optional<UsbCause> &cause)
{
    return {wtcErrorDomain, static_cast<int>(code), u"%1: %2"_s.arg(URI, why), cause};
}

WTError libraryErrorFromBus(const QString &URI, const WTError &usbError)
{
    const UsbCause cause = usbError.cause.value_or(UsbCause{static_cast<UsbErrorCode>(usbError.code)});
    return libraryError(codeOf(cause.code), URI, usbError.message, cause);
}

WTError noSuchPrinter(const QString &URI)
{
    return libraryError(WTCErrorCode::Unreachable, URI, u"no such printer on the USB bus"_s,
                        UsbCause{UsbErrorCode::NotFound});
}
