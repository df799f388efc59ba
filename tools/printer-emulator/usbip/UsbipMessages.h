#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The messages of USB/IP about transfers, as the kernel's Documentation/usb/usbip_protocol.rst lays them out: a header
/// of 48 bytes, big-endian, and the bytes of the transfer behind it.
namespace UsbipMessages
{
constexpr qsizetype headerSize = 48;

/// What the host asks for: to begin a transfer, or to withdraw one.
struct Request {
    bool isUnlink = false;
    quint32 sequence = 0;
    bool isIn = false;
    quint8 endpoint = 0;
    qsizetype length = 0; ///< Of the transfer.
    QByteArray setup{};   ///< Of a control transfer, eight bytes.
    quint32 unlinked = 0; ///< The transfer to withdraw.

    /// `header` holds `headerSize` bytes.
    static Request parse(QByteArrayView header);
    /// How many bytes follow the header.
    qsizetype dataSize() const { return isUnlink || isIn ? 0 : length; }
};

/// The end of a transfer: 0 or a negative errno; what was received, or how much was sent.
QByteArray received(quint32 sequence, int status, const QByteArray &data);
QByteArray sent(quint32 sequence, int status, qsizetype length);
/// The answer to a request to withdraw a transfer; `wasPending`: it had not ended yet.
QByteArray unlinked(quint32 sequence, bool wasPending);
} // namespace UsbipMessages
