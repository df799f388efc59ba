#pragma once

#include <QString>

/// Codes of the domain "USB" (`usbErrorDomain`): every failure of the USB stack, after the gate of its library.
enum class UsbErrorCode : int {
    NotFound = 1,     ///< No such device, or no printer interface on it.
    PermissionDenied, ///< The device node may not be opened.
    Busy,             ///< Another program or driver holds the interface.
    Unplugged,        ///< The device left the bus.
    Stalled,          ///< The endpoint answered with a stall; it has been cleared.
    TimedOut,         ///< No answer came in the time that there was for it.
    Cancelled,        ///< The transfer was broken off on purpose.
    Overflow,         ///< The device sent more than was asked for.
    Failed,           ///< Anything else; the message tells.
};

inline constexpr QLatin1StringView usbErrorDomain{"USB"};

/// What stood between the program and a printer, for a caller that decides by it or says it in words of its own.
struct UsbCause {
    UsbErrorCode code = UsbErrorCode::Failed;
    /// The device's node, "/dev/bus/usb/001/004". For PermissionDenied and Busy.
    QString node{};
    /// Busy: the program that holds the printer, "ipp-usb", and its process. Empty and 0 when that cannot be seen,
    /// which is usual for a program of another user.
    QString holder{};
    qint64 holderPID = 0;
    /// PermissionDenied: the group whose members may open the node; empty when nobody but root may.
    QString group{};

    bool operator==(const UsbCause &) const = default;
};
