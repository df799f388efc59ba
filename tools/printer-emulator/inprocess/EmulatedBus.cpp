#include "EmulatedBus.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr quint32 locationID = 0x01100000; ///< Bus 1, port 1.

WTError error(UsbErrorCode code, const QString &message)
{
    return {usbErrorDomain, static_cast<int>(code), message, UsbCause{code}};
}
} // namespace

EmulatedBus::EmulatedBus(TimePort &time, PrinterModel printer)
    : m_time(time)
    , m_lock(time, *this)
    , m_pipes(std::move(printer), packetSize, *this)
    , m_watchThread(u"emulated USB watch"_s)
{
    const TimedLock::Turn turn(m_lock);
    m_plugged = m_pipes.model().script().plugged;
    scheduleStart();
}

EmulatedBus::~EmulatedBus()
{
    m_lock.stop();
}

void EmulatedBus::apply(BusEvent::Action action)
{
    const TimedLock::Turn turn(m_lock);
    applyNow(action);
}

void EmulatedBus::applyNow(BusEvent::Action action)
{
    switch (action) {
    case BusEvent::Action::Unplug:
        return setPlugged(false);
    case BusEvent::Action::Plug:
        return setPlugged(true);
    case BusEvent::Action::Hold:
        m_held = true;
        return;
    case BusEvent::Action::Release:
        m_held = false;
        return;
    case BusEvent::Action::Deny:
        m_permitted = false;
        return;
    case BusEvent::Action::Permit:
        m_permitted = true;
        return;
    }
}

void EmulatedBus::setPlugged(bool plugged)
{
    if (plugged == m_plugged)
        return;
    m_plugged = plugged;
    if (!plugged) {
        m_gone = true;
        m_pipes.reset();
        m_moved.notify_all();
    }
    report();
}

PrinterRecord EmulatedBus::record() const
{
    const std::lock_guard lock(m_lock.mutex());
    return m_pipes.model().record();
}

void EmulatedBus::setScript(PrinterScript script)
{
    const TimedLock::Turn turn(m_lock);
    m_pipes.model().setScript(std::move(script));
    scheduleStart();
}

void EmulatedBus::scheduleStart()
{
    for (const BusEvent &event : m_pipes.model().script().events) {
        if (!event.after)
            scheduled(event);
    }
}

void EmulatedBus::scheduled(const BusEvent &event)
{
    m_agenda.add(m_time.now() + event.delay, {0, event.action});
}

void EmulatedBus::watch(std::vector<quint16> vendorIDs, UsbPort::ListChanged changed)
{
    const TimedLock::Turn turn(m_lock);
    m_watchedVendors = std::move(vendorIDs);
    m_changed = std::move(changed);
    report();
}

void EmulatedBus::stopWatching()
{
    {
        const TimedLock::Turn turn(m_lock);
        m_changed = nullptr;
    }
    if (!m_watchThread.isCurrent())
        m_watchThread.sync([] {});
}

void EmulatedBus::report()
{
    m_watchThread.async([this] {
        std::unique_lock lock(m_lock.mutex());
        const UsbPort::ListChanged changed = m_changed;
        const std::vector<quint16> vendors = m_watchedVendors;
        lock.unlock();
        if (changed)
            changed(devices(vendors));
    });
}

UsbDevice EmulatedBus::facts() const
{
    const ModelIdentity &identity = m_pipes.model().identity();
    return {identity.vendorID,
            identity.productID,
            locationID,
            identity.manufacturer,
            identity.product(),
            identity.serialNumber,
            QString::fromUtf8(identity.deviceID())};
}

UsbDeviceList EmulatedBus::devices(const std::vector<quint16> &vendorIDs) const
{
    const std::lock_guard lock(m_lock.mutex());
    const bool wanted = std::ranges::find(vendorIDs, facts().vendorID) != vendorIDs.end();
    return m_plugged && wanted ? UsbDeviceList{facts()} : UsbDeviceList{};
}

std::optional<WTError> EmulatedBus::obstacle(const UsbDevice &device) const
{
    const std::lock_guard lock(m_lock.mutex());
    return refusal(device);
}

std::optional<WTError> EmulatedBus::refusal(const UsbDevice &device) const
{
    if (!m_plugged || device.locationID != locationID)
        return error(UsbErrorCode::NotFound, u"opening the emulated printer: not on the bus"_s);
    if (!m_permitted)
        return error(UsbErrorCode::PermissionDenied, u"permission denied on the emulated printer"_s);
    if (m_held)
        return error(UsbErrorCode::Busy, u"the emulated printer is held by another program"_s);
    return std::nullopt;
}

std::optional<WTError> EmulatedBus::claim(const UsbDevice &device)
{
    const TimedLock::Turn turn(m_lock);
    if (auto refused = refusal(device))
        return refused;
    if (m_claimed)
        return error(UsbErrorCode::Busy, u"the emulated printer is in use"_s);
    m_claimed = true;
    m_gone = m_cancelled = false;
    return std::nullopt;
}

void EmulatedBus::release()
{
    const TimedLock::Turn turn(m_lock);
    m_claimed = false;
    m_pipes.model().endExchange();
}

std::optional<WTError> EmulatedBus::write(QByteArrayView bytes)
{
    Transfer transfer;
    transfer.bytes = bytes.toByteArray();
    return run(transfer);
}

WTResult<QByteArray> EmulatedBus::read(qsizetype atMost)
{
    Transfer transfer;
    transfer.in = true;
    transfer.atMost = atMost;
    if (std::optional<WTError> failed = run(transfer))
        return *std::move(failed);
    return std::move(transfer.bytes);
}

std::optional<WTError> EmulatedBus::run(Transfer &transfer)
{
    {
        const TimedLock::Turn turn(m_lock);
        m_transfer = &transfer;
    }
    std::unique_lock lock(m_lock.mutex());
    m_moved.wait(lock, [&] { return transfer.outcome != PrinterPipes::Outcome::Waiting || m_gone || m_cancelled; });
    m_transfer = nullptr;
    if (m_gone && transfer.outcome == PrinterPipes::Outcome::Waiting)
        transfer.outcome = PrinterPipes::Outcome::Unplug;
    switch (transfer.outcome) {
    case PrinterPipes::Outcome::Complete:
        return std::nullopt;
    case PrinterPipes::Outcome::Waiting:
        return error(UsbErrorCode::Cancelled, u"the transfer was cancelled"_s);
    case PrinterPipes::Outcome::Stalled:
        m_pipes.clearHalt(transfer.in);
        return error(UsbErrorCode::Stalled, u"the emulated printer stalled"_s);
    case PrinterPipes::Outcome::Overflow:
        return error(UsbErrorCode::Overflow, u"the emulated printer sent more than was asked for"_s);
    case PrinterPipes::Outcome::Unplug:
        return error(UsbErrorCode::Unplugged, u"the emulated printer was unplugged"_s);
    }
    Q_UNREACHABLE();
}

QByteArray EmulatedBus::drainInput()
{
    // Without a cable no byte is ever under way: what the printer has said by now is all there is.
    const TimedLock::Turn turn(m_lock);
    QByteArray drained;
    while (m_pipes.hasReplyDue(m_time.now()) && !m_pipes.unplugIsDue(m_time.now())) {
        QByteArray bytes;
        if (m_pipes.receive(bytes, packetSize, m_time.now()) == PrinterPipes::Outcome::Stalled)
            m_pipes.clearHalt(true);
        drained += bytes;
    }
    return drained;
}

void EmulatedBus::cancel()
{
    const TimedLock::Turn turn(m_lock);
    m_cancelled = true;
    m_moved.notify_all();
}

void EmulatedBus::settle()
{
    const Instant now = m_time.now();
    if (m_transfer && m_transfer->outcome == PrinterPipes::Outcome::Waiting && !m_gone && !m_cancelled) {
        m_transfer->outcome = m_transfer->in ? m_pipes.receive(m_transfer->bytes, m_transfer->atMost, now)
                                             : m_pipes.send(m_transfer->bytes, m_transfer->out, now);
        if (m_transfer->outcome == PrinterPipes::Outcome::Unplug)
            setPlugged(false);
        m_moved.notify_all();
    }
    if (m_pipes.unplugIsDue(now))
        setPlugged(false);
    while (const auto entry = m_agenda.takeDue(now))
        applyNow(entry->action);
}

std::optional<EmulatedBus::Instant> EmulatedBus::nextDue(Instant now) const
{
    std::optional<Instant> due = m_agenda.next();
    const auto consider = [&due](const std::optional<Instant> &instant) {
        if (instant)
            due = std::min(due.value_or(*instant), *instant);
    };
    consider(m_pipes.nextDue(now));
    if (m_transfer && m_transfer->out.plan && !m_transfer->out.taken)
        consider(m_transfer->out.due);
    return due;
}
