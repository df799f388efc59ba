#include "RemoteBus.h"

#include <algorithm>
#include <utility>

using std::chrono::steady_clock;

RemoteBus::RemoteBus(PrinterModel model, RemoteLine &line, std::function<void(const ReceivedFrame &)> received)
    : m_line(line)
    , m_device(std::move(model), line.shape(),
               {.received = std::move(received),
                .scheduled =
                    [this](const BusEvent &event) {
                        m_agenda.add(steady_clock::now() + event.delay, {0, event.action});
                    },
                .ended = [this](const RemoteDevice::Transfer &transfer,
                                RemoteDevice::End end) { m_line.ended(transfer, end); }})
{
    for (const BusEvent &event : m_device.model().script().events) {
        if (!event.after)
            m_agenda.add(steady_clock::now() + event.delay, {0, event.action});
    }
}

void RemoteBus::run()
{
    if (m_device.model().script().plugged)
        m_line.plug(m_device);
    for (Instant moved = steady_clock::now(); m_line.isPlugged() || m_agenda.next();) {
        m_line.flush();
        m_line.wait(untilNextDue(moved));
        moved = steady_clock::now();
        moveOn();
        while (const auto entry = m_agenda.takeDue(steady_clock::now()))
            apply(entry->action);
    }
    m_line.flush();
}

void RemoteBus::moveOn()
{
    const bool wasPlugged = m_line.isPlugged();
    m_line.serve();
    if (wasPlugged && !m_line.isPlugged())
        leave();
    else if (wasPlugged && !m_device.pump(steady_clock::now()))
        pullPlug();
}

void RemoteBus::apply(BusEvent::Action action)
{
    switch (action) {
    case BusEvent::Action::Unplug:
        pullPlug();
        break;
    case BusEvent::Action::Plug:
        if (!m_line.isPlugged())
            m_line.plug(m_device);
        break;
    case BusEvent::Action::Hold:
    case BusEvent::Action::Release:
    case BusEvent::Action::Deny:
    case BusEvent::Action::Permit:
        break; // The kernel decides who has the interface.
    }
}

void RemoteBus::pullPlug()
{
    using enum PrinterScript::PulledPlug;
    const auto pulled = m_device.model().script().pulledPlug;
    if (!m_line.isPlugged() || m_device.isFailing() || pulled == AtOnce)
        return leave();
    m_device.failAll(pulled == Stalls ? RemoteDevice::End::Stall : RemoteDevice::End::Error);
    m_agenda.add(steady_clock::now() + PrinterScript::hubNotices, {0, BusEvent::Action::Unplug});
}

void RemoteBus::leave()
{
    m_line.unplug();
    m_device.unplugged();
}

std::optional<std::chrono::milliseconds> RemoteBus::untilNextDue(Instant moved) const
{
    std::optional<Instant> due = m_device.nextDue(moved);
    if (const std::optional<Instant> event = m_agenda.next())
        due = std::min(due.value_or(*event), *event);
    if (!due)
        return std::nullopt;
    return std::max(std::chrono::milliseconds(0),
                    std::chrono::ceil<std::chrono::milliseconds>(*due - steady_clock::now()));
}
