#include "LibusbConnection.h"

#include "UsbDeparture.h"
#include "UsbErrorGate.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr qsizetype largestTransfer = 65536;
constexpr TimePort::Duration drainSilence{50};
/// A device that never falls silent is not listened to for ever.
constexpr int mostDrainedTransfers = 64;

} // namespace

LibusbConnection::LibusbConnection(TimePort &time, UsbHandle handle, std::shared_ptr<ClaimedInterface> claim,
                                   const PrinterInterface &interface, const QString &node)
    : m_time(time)
    , m_handle(std::move(handle))
    , m_claim(std::move(claim))
    , m_interface(interface)
    , m_node(node)
    , m_transfer(libusb_alloc_transfer(0))
{
}

LibusbConnection::~LibusbConnection() = default;

std::optional<WTError> LibusbConnection::write(QByteArrayView bytes)
{
    const QString what = u"writing to %1"_s.arg(m_node);
    while (!bytes.isEmpty()) {
        // libusb only reads from the buffer of an OUT transfer.
        auto *buffer = const_cast<unsigned char *>(reinterpret_cast<const unsigned char *>(bytes.data()));
        const auto size = static_cast<int>(std::min(bytes.size(), largestTransfer));
        const Outcome outcome = transfer(m_interface.outEndpoint, buffer, size, what);
        if (outcome.failure)
            return judged(*outcome.failure, what);
        if (outcome.transferred == 0)
            return usbError({UsbErrorCode::Failed}, what, u"the device takes no bytes"_s);
        bytes = bytes.sliced(outcome.transferred);
    }
    return std::nullopt;
}

WTResult<QByteArray> LibusbConnection::read(qsizetype atMost)
{
    if (m_unread.isEmpty()) {
        auto failure = std::exchange(m_failureBehindUnread, std::nullopt);
        if (!failure)
            failure = fill(atMost);
        if (failure)
            return judged(*failure, reading());
    }
    QByteArray bytes = m_unread.left(atMost);
    m_unread.remove(0, bytes.size());
    return bytes;
}

std::optional<WTError> LibusbConnection::fill(qsizetype wanted)
{
    // Whole packets: a packet that does not fit would be lost as an overflow.
    const qsizetype packet = std::max(m_interface.inPacketSize, 1);
    const qsizetype packets = std::clamp((wanted + packet - 1) / packet, qsizetype{1}, largestTransfer / packet);
    m_unread.resize(packets * packet);
    Outcome outcome = transfer(m_interface.inEndpoint, reinterpret_cast<unsigned char *>(m_unread.data()),
                               static_cast<int>(m_unread.size()), reading());
    m_unread.truncate(outcome.transferred);
    if (outcome.transferred == 0)
        return outcome.failure;
    m_failureBehindUnread = std::move(outcome.failure);
    return std::nullopt;
}

QString LibusbConnection::reading() const
{
    return u"reading from %1"_s.arg(m_node);
}

WTError LibusbConnection::judged(const WTError &failure, const QString &what) const
{
    return unlessUnplugged(failure, what, m_time, m_handle.get(), m_interface.number);
}

QByteArray LibusbConnection::drainInput()
{
    QByteArray drained;
    for (int i = 0; i < mostDrainedTransfers; ++i) {
        const auto silence = m_time.after(drainSilence, [this] { endTransfer(m_silent); });
        const auto failure = fill(largestTransfer);
        drained += std::exchange(m_unread, {});
        if (failure && !isUsbError(*failure, UsbErrorCode::Stalled))
            break;
    }
    m_failureBehindUnread.reset();
    const std::lock_guard lock(m_mutex);
    m_silent = false;
    return drained;
}

void LibusbConnection::cancel()
{
    endTransfer(m_cancelled);
}

void LibusbConnection::endTransfer(bool &reason)
{
    const std::lock_guard lock(m_mutex);
    reason = true;
    if (m_underWay)
        libusb_cancel_transfer(m_transfer.get());
}

LibusbConnection::Outcome LibusbConnection::transfer(unsigned char endpoint, unsigned char *buffer, int size,
                                                     const QString &what)
{
    std::unique_lock lock(m_mutex);
    if (m_cancelled || m_silent)
        return {0, usbErrorFromTransfer(LIBUSB_TRANSFER_CANCELLED, what)};
    libusb_fill_bulk_transfer(m_transfer.get(), m_handle.get(), endpoint, buffer, size, &LibusbConnection::completed,
                              this, 0);
    const int result = libusb_submit_transfer(m_transfer.get());
    if (result != LIBUSB_SUCCESS)
        return {0, usbErrorFromLibrary(result, what)};
    m_underWay = true;
    m_ended.wait(lock, [this] { return !m_underWay; });
    lock.unlock();

    if (m_transfer->status == LIBUSB_TRANSFER_STALL)
        libusb_clear_halt(m_handle.get(), endpoint);
    return {m_transfer->actual_length, usbErrorFromTransfer(m_transfer->status, what)};
}

void LIBUSB_CALL LibusbConnection::completed(libusb_transfer *transfer)
{
    auto *const connection = static_cast<LibusbConnection *>(transfer->user_data);
    // Notified under the lock: as soon as it is free, the connection may go.
    const std::lock_guard lock(connection->m_mutex);
    connection->m_underWay = false;
    connection->m_ended.notify_all();
}
