#include "UsbipDevice.h"

#include "ControlPipe.h"
#include "UsbDescriptors.h"

#include <algorithm>
#include <cerrno>
#include <linux/usb/ch9.h>
#include <utility>

using UsbipMessages::Request;

UsbipDevice::UsbipDevice(PrinterModel model, Listener listener)
    : m_listener(std::move(listener))
    , m_pipes(std::move(model), m_shape.packetSize, *this)
{
}

void UsbipDevice::handle(const Request &request, const QByteArray &data)
{
    if (request.isUnlink) {
        const auto given = std::ranges::find(m_pending, request.unlinked,
                                             [](const Transfer &pending) { return pending.request.sequence; });
        m_answers += UsbipMessages::unlinked(request.sequence, given != m_pending.end());
        if (given != m_pending.end())
            m_pending.erase(given);
    } else if (isFailing()) {
        m_answers += UsbipMessages::received(request.sequence, m_failure, {});
    } else if (request.endpoint == 0) {
        control(request);
    } else {
        m_pending.push_back({request, data});
    }
}

void UsbipDevice::control(const Request &request)
{
    const std::optional<QByteArray> answer = controlAnswer(request);
    if (!answer)
        m_answers += UsbipMessages::received(request.sequence, -EPIPE, {});
    else if (request.isIn)
        m_answers +=
            UsbipMessages::received(request.sequence, 0, answer->first(std::min(answer->size(), request.length)));
    else
        m_answers += UsbipMessages::sent(request.sequence, 0, request.length);
}

std::optional<QByteArray> UsbipDevice::controlAnswer(const Request &request)
{
    const auto setup = ControlPipe::Setup::parse(request.setup);
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
        // Whoever takes the interface over begins anew.
        m_pipes.model().endExchange();
        m_pipes.clearHalt(false);
        m_pipes.clearHalt(true);
        break;
    default:
        break;
    }
    return ControlPipe::answer(setup, model().identity(), m_shape);
}

bool UsbipDevice::pump(Instant now)
{
    return pump(false, now) && pump(true, now) && !m_pipes.unplugIsDue(now);
}

bool UsbipDevice::pump(bool in, Instant now)
{
    const auto next = [&] {
        return std::ranges::find_if(m_pending, [in](const Transfer &pending) { return pending.request.isIn == in; });
    };
    for (auto transfer = next(); transfer != m_pending.end(); transfer = next()) {
        switch (in ? m_pipes.receive(transfer->bytes, transfer->request.length, now)
                   : m_pipes.send(transfer->bytes, transfer->out, now)) {
        case PrinterPipes::Outcome::Waiting:
            return true;
        case PrinterPipes::Outcome::Complete:
            complete(transfer, 0);
            break;
        case PrinterPipes::Outcome::Stalled:
            complete(transfer, -EPIPE);
            break;
        case PrinterPipes::Outcome::Overflow:
            complete(transfer, -EOVERFLOW);
            break;
        case PrinterPipes::Outcome::Unplug:
            return false;
        }
    }
    return true;
}

void UsbipDevice::complete(Transfers::iterator transfer, int status)
{
    const quint32 sequence = transfer->request.sequence;
    m_answers += transfer->request.isIn ? UsbipMessages::received(sequence, status, transfer->bytes)
                                        : UsbipMessages::sent(sequence, status, transfer->out.sent);
    m_pending.erase(transfer);
}

std::optional<UsbipDevice::Instant> UsbipDevice::nextDue(Instant now) const
{
    std::optional<Instant> due = m_pipes.nextDue(now);
    for (const Transfer &pending : m_pending) {
        if (pending.out.plan && !pending.out.taken)
            due = std::min(due.value_or(pending.out.due), pending.out.due);
    }
    return due;
}

void UsbipDevice::failAll(int status)
{
    m_failure = status;
    while (!m_pending.empty())
        complete(m_pending.begin(), status);
    m_pipes.reset();
}

void UsbipDevice::reset()
{
    m_failure = 0;
    m_pending.clear();
    m_answers.clear();
    m_pipes.reset();
}
