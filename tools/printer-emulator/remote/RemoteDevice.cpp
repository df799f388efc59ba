#include "RemoteDevice.h"

#include "UsbDescriptors.h"

#include <algorithm>
#include <linux/usb/ch9.h>
#include <utility>

RemoteDevice::RemoteDevice(PrinterModel model, UsbShape shape, Listener listener)
    : m_shape(std::move(shape))
    , m_listener(std::move(listener))
    , m_pipes(std::move(model), m_shape.packetSize, *this)
{
}

RemoteDevice::ControlEnd RemoteDevice::control(const ControlPipe::Setup &setup)
{
    if (m_failure)
        return {*m_failure};
    const std::optional<QByteArray> answer = controlAnswer(setup);
    if (!answer)
        return {End::Stall};
    return {End::Success, answer->first(std::min<qsizetype>(answer->size(), setup.length))};
}

std::optional<QByteArray> RemoteDevice::controlAnswer(const ControlPipe::Setup &setup)
{
    switch (setup.requestType << 8 | setup.request) {
    case USB_DIR_IN << 8 | USB_REQ_GET_DESCRIPTOR:
        if (setup.value >> 8 == USB_DT_DEVICE)
            return UsbDescriptors::device(model().identity());
        if (setup.value >> 8 == USB_DT_CONFIG)
            return UsbDescriptors::configuration(m_shape);
        break;
    case USB_DIR_IN << 8 | USB_REQ_GET_STATUS:
        return QByteArray(2, '\0');
    case USB_RECIP_ENDPOINT << 8 | USB_REQ_CLEAR_FEATURE:
        m_pipes.clearHalt(setup.index & USB_DIR_IN);
        break;
    case USB_RECIP_INTERFACE << 8 | USB_REQ_SET_INTERFACE:
        setInterface();
        break;
    default:
        break;
    }
    return ControlPipe::answer(setup, model().identity(), m_shape);
}

void RemoteDevice::setInterface()
{
    m_pipes.model().endExchange();
    m_pipes.clearHalt(false);
    m_pipes.clearHalt(true);
}

std::optional<RemoteDevice::Transfer> RemoteDevice::giveUp(quint64 identity)
{
    const auto given = std::ranges::find(m_pending, identity, &Transfer::identity);
    if (given == m_pending.end())
        return std::nullopt;
    Transfer transfer = std::move(*given);
    m_pending.erase(given);
    return transfer;
}

bool RemoteDevice::pump(Instant now)
{
    while (m_failure && !m_pending.empty())
        complete(m_pending.begin(), *m_failure);
    return m_failure || (pump(false, now) && pump(true, now) && !m_pipes.unplugIsDue(now));
}

bool RemoteDevice::pump(bool in, Instant now)
{
    const auto next = [&] {
        return std::ranges::find_if(m_pending, [in](const Transfer &pending) { return pending.isIn == in; });
    };
    for (auto transfer = next(); transfer != m_pending.end(); transfer = next()) {
        switch (in ? m_pipes.receive(transfer->bytes, transfer->length, now)
                   : m_pipes.send(transfer->bytes, transfer->out, now)) {
        case PrinterPipes::Outcome::Waiting:
            return true;
        case PrinterPipes::Outcome::Complete:
            complete(transfer, End::Success);
            break;
        case PrinterPipes::Outcome::Stalled:
            complete(transfer, End::Stall);
            break;
        case PrinterPipes::Outcome::Overflow:
            complete(transfer, End::Overflow);
            break;
        case PrinterPipes::Outcome::Unplug:
            return false;
        }
    }
    return true;
}

void RemoteDevice::complete(Transfers::iterator transfer, End end)
{
    m_listener.ended(*transfer, end);
    m_pending.erase(transfer);
}

std::optional<RemoteDevice::Instant> RemoteDevice::nextDue(Instant now) const
{
    std::optional<Instant> due = m_pipes.nextDue(now);
    for (const Transfer &pending : m_pending) {
        if (pending.out.plan && !pending.out.taken)
            due = std::min(due.value_or(pending.out.due), pending.out.due);
    }
    return due;
}

void RemoteDevice::failAll(End end)
{
    m_failure = end;
    while (!m_pending.empty())
        complete(m_pending.begin(), end);
    m_pipes.reset();
}

void RemoteDevice::reset()
{
    m_pending.clear();
    m_pipes.reset();
}

void RemoteDevice::unplugged()
{
    reset();
    m_failure.reset();
}
