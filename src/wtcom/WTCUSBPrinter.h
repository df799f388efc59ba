#pragma once

#include "UsbPort.h"

#include <QByteArray>
#include <functional>
#include <optional>

/// Bytes of an ACL reply header.
inline constexpr quint8 kACLHeadSize = 16;

/// Codes of the domain "WTCOM". An error's cause tells what happened on the bus: behind Unreachable stand NotFound,
/// PermissionDenied, Busy (with its holder) and Unplugged.
enum class WTCErrorCode : int {
    Unreachable = 31, ///< The printer is absent, held, not permitted, or gone.
    TimedOut = 32,
    TransferFailed = 33,
};

inline constexpr QLatin1StringView wtcErrorDomain{"WTCOM"};

/// Sends command frames to a USB printer.
class WTCUSBPrinter
{
public:
    /// Called exactly once per send, before the data callback, with the reply header: whole, in part (as it came before
    /// the failure), or absent. Worker thread. Write how many data bytes to read (0 on entry), or set `stop` to read
    /// none.
    using HeadCallback = std::function<void(const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop)>;

    /// Called exactly once per send, after the head callback, on the worker thread, also after a stop, a time-out or a
    /// failure. The device is closed by then. Data is whole or absent: absent with an error when it did not come whole,
    /// absent without one after a stop and for a data length of 0.
    using DataCallback =
        std::function<void(const std::optional<QByteArray> &data, const std::optional<WTError> &error)>;

    /// Finds the printer by its URI, sends `data`, reads exactly `headSize` bytes of header and then the data, in
    /// whatever slices they come. Returns at once; everything happens on a worker thread of this send. Only where the
    /// system has no thread to give, both callbacks are made on the calling thread, with an error.
    /// Sends to one device take turns. The reply to a send that was broken off does not get into the next one's,
    /// however late it comes; unless both sent the same command: then it is taken for the next one's.
    /// @param timeout milliseconds for the whole exchange.
    static void IOKit_sendACLWithURI(const QString &URI, const QByteArray &data, quint8 headSize, int timeout,
                                     HeadCallback headCallback, DataCallback dataCallback);

    /// What a send to this printer would be refused with now, code 31; absent when the printer is there and free.
    /// Nothing is sent or claimed, but the answer may take a second: not on the main thread.
    static std::optional<WTError> obstacle(const QString &URI);
};
