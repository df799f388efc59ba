#pragma once

#include "DeviceTurns.h"
#include "TimePort.h"
#include "UsbPort.h"
#include "WTCUSBPrinter.h"

class LibraryLog;

/// What one send is to do, and whom it tells.
struct AclRequest {
    QString URI;
    QByteArray frame;
    quint8 headSize = 0;
    TimePort::Duration timeout{0};
    WTCUSBPrinter::HeadCallback headCallback;
    WTCUSBPrinter::DataCallback dataCallback;
};

/// What an exchange works with. All outlive it.
struct AclEnvironment {
    UsbPort &usb;
    TimePort &time;
    LibraryLog &log;
    DeviceTurns &turns;
    std::vector<quint16> vendorIDs;
};

/// One command and its reply:
///
///     look the printer up -> wait for its turn -> open -> write the frame -> read the header -> head callback
///     -> read the data -> close -> data callback
///
/// What the printer says late about an earlier command is read and dropped ahead of the frame and of the header.
/// A step that fails skips the others, but never a callback: the head callback is made once, then the data callback
/// once.
class AclExchange
{
public:
    AclExchange(AclEnvironment environment, AclRequest request);

    /// The whole exchange, on the calling thread. Once.
    void run();

    /// Both callbacks for an exchange that cannot run at all, on the calling thread. In place of `run`.
    void refuse(const QString &why);

    /// Breaks the exchange off; `run` then ends soon. Any thread.
    void cancel();

private:
    enum class BreakOff { None, TimedOut, Cancelled };
    class BreakOffReach;

    /// What came so far. Data that did not come whole is counted, but not handed on.
    struct Reply {
        std::optional<QByteArray> header;
        std::optional<QByteArray> data;
        std::optional<WTError> error;
    };

    void exchange();
    void converse(UsbConnection &connection, EarlierReplies &earlier);
    /// The header of this command's reply, or of one that belongs to no command at all.
    bool readHeader(UsbConnection &connection, EarlierReplies &earlier);
    /// Appends to `bytes` until it has `size` of them.
    std::optional<WTError> read(UsbConnection &connection, quint32 size, QByteArray &bytes) const;
    bool makeHeadCallback(quint32 &dataLength);
    void makeDataCallback();

    void breakOff(BreakOff reason);
    BreakOff brokenOff() const;
    void fail(WTCErrorCode code, const QString &why, const std::optional<UsbCause> &cause = std::nullopt);
    void failOnBus(const WTError &usbError);
    void failBrokenOff();

    const AclEnvironment m_environment;
    const AclRequest m_request;
    Reply m_reply;
    bool m_headCallbackMade = false;

    mutable std::mutex m_mutex;
    UsbConnection *m_connection = nullptr;
    BreakOff m_breakOff = BreakOff::None;
};
