#include "AclExchange.h"

#include "LibraryError.h"
#include "LibraryLog.h"
#include "WTCDevice.h"

#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// One empty packet may end a transfer. A device that sends nothing else must not keep a processor busy.
constexpr TimePort::Duration emptyPacketPause{10};

} // namespace

/// While it lives, `breakOff` cancels the connection. If the exchange was broken off before, that happens at once.
class AclExchange::BreakOffReach
{
public:
    BreakOffReach(AclExchange &exchange, UsbConnection &connection)
        : m_exchange(exchange)
    {
        const std::lock_guard lock(m_exchange.m_mutex);
        m_exchange.m_connection = &connection;
        if (m_exchange.m_breakOff != BreakOff::None)
            connection.cancel();
    }

    ~BreakOffReach()
    {
        const std::lock_guard lock(m_exchange.m_mutex);
        m_exchange.m_connection = nullptr;
    }

    BreakOffReach(const BreakOffReach &) = delete;
    BreakOffReach &operator=(const BreakOffReach &) = delete;

private:
    AclExchange &m_exchange;
};

AclExchange::AclExchange(AclEnvironment environment, AclRequest request)
    : m_environment(std::move(environment))
    , m_request(std::move(request))
{
}

void AclExchange::run()
{
    const auto start = m_environment.time.now();
    try {
        // Destroying the deadline waits for its action, which so never runs on an exchange that is gone.
        const auto deadline = m_environment.time.after(m_request.timeout, [this] { breakOff(BreakOff::TimedOut); });
        exchange();
    } catch (const std::exception &exception) {
        fail(WTCErrorCode::TransferFailed, QString::fromUtf8(exception.what()));
    }
    const auto duration = std::chrono::duration_cast<TimePort::Duration>(m_environment.time.now() - start);
    m_environment.log.write(m_reply.error ? LibraryLog::Error : LibraryLog::Info,
                            u"sent %1 bytes to %2, header %3 bytes, data %4 bytes, %5 ms, %6"_s.arg(
                                QString::number(m_request.frame.size()), m_request.URI,
                                QString::number(m_reply.header.value_or(QByteArray()).size()),
                                QString::number(m_reply.data.value_or(QByteArray()).size()),
                                QString::number(duration.count()), m_reply.error ? m_reply.error->message : u"done"_s));
    makeDataCallback();
}

void AclExchange::refuse(const QString &why)
{
    fail(WTCErrorCode::TransferFailed, why);
    m_environment.log.write(LibraryLog::Error, m_reply.error->message);
    makeDataCallback();
}

void AclExchange::exchange()
{
    const auto device = deviceNamed(m_request.URI, m_environment.usb.devices(m_environment.vendorIDs));
    if (!device) {
        m_reply.error = noSuchPrinter(m_request.URI);
        return;
    }
    const auto turn = m_environment.turns.wait(device->locationID, [this] { return brokenOff() != BreakOff::None; });
    if (!turn)
        return failBrokenOff();
    const auto connection = m_environment.usb.open(*device);
    if (!connection)
        return failOnBus(connection.error());
    const BreakOffReach reach(*this, *connection.value());
    converse(*connection.value(), turn->earlierReplies);
}

void AclExchange::converse(UsbConnection &connection, EarlierReplies &earlier)
{
    if (!earlier.isEmpty())
        earlier.drop(connection.drainInput());
    earlier.asked(m_request.frame);
    if (const auto error = connection.write(m_request.frame))
        return failOnBus(*error);
    if (!readHeader(connection, earlier))
        return;
    quint32 dataLength = 0;
    if (!makeHeadCallback(dataLength))
        return;
    if (dataLength > 0) {
        m_reply.data.emplace();
        const auto error = read(connection, dataLength, *m_reply.data);
        earlier.dataCame(m_reply.data->size());
        if (error)
            failOnBus(*error);
    }
}

bool AclExchange::readHeader(UsbConnection &connection, EarlierReplies &earlier)
{
    QByteArray header;
    std::optional<WTError> error;
    do {
        error = read(connection, m_request.headSize, header);
    } while (earlier.takeFrom(header) && !error);
    earlier.headerCame(header);
    if (!error || !header.isEmpty())
        m_reply.header = header;
    if (error)
        failOnBus(*error);
    return !error;
}

std::optional<WTError> AclExchange::read(UsbConnection &connection, quint32 size, QByteArray &bytes) const
{
    bool wasEmpty = false;
    while (bytes.size() < size) {
        const auto slice = connection.read(size - bytes.size());
        if (!slice)
            return slice.error();
        if (slice.value().isEmpty() && wasEmpty)
            m_environment.time.sleep(emptyPacketPause);
        wasEmpty = slice.value().isEmpty();
        bytes += slice.value();
    }
    return std::nullopt;
}

bool AclExchange::makeHeadCallback(quint32 &dataLength)
{
    bool stop = false;
    m_headCallbackMade = true;
    if (!m_request.headCallback)
        return true;
    try {
        m_request.headCallback(m_reply.header, &dataLength, &stop);
    } catch (...) {
        fail(WTCErrorCode::TransferFailed, u"the head callback threw an exception"_s);
        return false;
    }
    return !stop;
}

void AclExchange::makeDataCallback()
{
    quint32 ignored = 0;
    if (!m_headCallbackMade)
        makeHeadCallback(ignored);
    if (!m_request.dataCallback)
        return;
    try {
        m_request.dataCallback(m_reply.error ? std::nullopt : m_reply.data, m_reply.error);
    } catch (...) {
        m_environment.log.write(LibraryLog::Error, u"%1: the data callback threw an exception"_s.arg(m_request.URI));
    }
}

void AclExchange::cancel()
{
    breakOff(BreakOff::Cancelled);
}

void AclExchange::breakOff(BreakOff reason)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_breakOff == BreakOff::None)
            m_breakOff = reason;
        if (m_connection)
            m_connection->cancel();
    }
    m_environment.turns.askAgain();
}

AclExchange::BreakOff AclExchange::brokenOff() const
{
    const std::lock_guard lock(m_mutex);
    return m_breakOff;
}

void AclExchange::fail(WTCErrorCode code, const QString &why, const std::optional<UsbCause> &cause)
{
    m_reply.error = libraryError(code, m_request.URI, why, cause);
}

void AclExchange::failOnBus(const WTError &usbError)
{
    if (static_cast<UsbErrorCode>(usbError.code) == UsbErrorCode::Cancelled)
        return failBrokenOff();
    m_reply.error = libraryErrorFromBus(m_request.URI, usbError);
}

void AclExchange::failBrokenOff()
{
    if (brokenOff() == BreakOff::TimedOut)
        return fail(WTCErrorCode::TimedOut, u"timed out after %1 ms"_s.arg(m_request.timeout.count()),
                    UsbCause{UsbErrorCode::TimedOut});
    fail(WTCErrorCode::TransferFailed, u"cancelled"_s, UsbCause{UsbErrorCode::Cancelled});
}
