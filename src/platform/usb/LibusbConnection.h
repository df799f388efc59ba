#pragma once

#include "ClaimedInterface.h"
#include "TimePort.h"
#include "UsbHandles.h"
#include "UsbPort.h"

#include <condition_variable>
#include <mutex>

/// A claimed printer interface. Transfers are asynchronous, without a time limit of libusb's: the caller waits for the
/// event thread to complete them.
class LibusbConnection final : public UsbConnection
{
public:
    /// @param node names the device in messages. @param time outlives the connection.
    LibusbConnection(TimePort &time, UsbHandle handle, std::shared_ptr<ClaimedInterface> claim,
                     const PrinterInterface &interface, const QString &node);
    ~LibusbConnection() override;

    [[nodiscard]] std::optional<WTError> write(QByteArrayView bytes) override;
    [[nodiscard]] WTResult<QByteArray> read(qsizetype atMost) override;
    QByteArray drainInput() override;
    void cancel() override;

private:
    struct Outcome {
        int transferred = 0; ///< Bytes, also of a transfer that failed on its way.
        std::optional<WTError> failure;
    };

    /// One transfer, start to end.
    Outcome transfer(unsigned char endpoint, unsigned char *buffer, int size, const QString &what);
    static void LIBUSB_CALL completed(libusb_transfer *transfer);
    /// Reads into `m_unread`.
    std::optional<WTError> fill(qsizetype wanted);
    QString reading() const;
    /// The failure, or "unplugged" if the device has left the bus (`unlessUnplugged`).
    WTError judged(const WTError &failure, const QString &what) const;
    void endTransfer(bool &reason);

    TimePort &m_time;
    const UsbHandle m_handle;
    const std::shared_ptr<ClaimedInterface> m_claim; ///< Released before the handle closes.
    const PrinterInterface m_interface;
    const QString m_node;

    /// Transfers are of whole packets, so that more may come than a reader asked for; it is kept for the next one.
    QByteArray m_unread;
    /// Of a transfer that brought bytes and then failed: told when the bytes have been read.
    std::optional<WTError> m_failureBehindUnread;

    std::mutex m_mutex;
    std::condition_variable m_ended;
    const UsbTransfer m_transfer;
    bool m_underWay = false;
    bool m_cancelled = false;
    bool m_silent = false; ///< While input is drained: the device has been silent for long enough.
};
