#include "UsbipBus.h"

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

using std::chrono::steady_clock;

UsbipBus::UsbipBus(PrinterModel model, std::function<void(const ReceivedFrame &)> received)
    : m_device(std::move(model), {std::move(received), [this](const BusEvent &event) {
                                      m_agenda.add(steady_clock::now() + event.delay, {0, event.action});
                                  }})
{
    for (const BusEvent &event : m_device.model().script().events) {
        if (!event.after)
            m_agenda.add(steady_clock::now() + event.delay, {0, event.action});
    }
}

void UsbipBus::run()
{
    if (m_device.model().script().plugged)
        m_host.emplace();
    while (m_host || m_agenda.next()) {
        if (m_host)
            m_host->wait(untilNextDue());
        else
            std::this_thread::sleep_until(*m_agenda.next());
        serveDueRequests();
        while (const auto entry = m_agenda.takeDue(steady_clock::now()))
            apply(entry->action);
    }
}

void UsbipBus::serveDueRequests()
{
    while (m_host && m_host->hasInput()) {
        const std::optional<QByteArray> header = m_host->read(UsbipMessages::headerSize);
        const auto request =
            UsbipMessages::Request::parse(header.value_or(QByteArray(UsbipMessages::headerSize, '\0')));
        const std::optional<QByteArray> data = header ? m_host->read(request.dataSize()) : std::nullopt;
        if (!data)
            return leave();
        m_device.handle(request, *data);
    }
    if (!m_host)
        return;
    const bool stays = m_device.pump(steady_clock::now());
    m_host->write(m_device.takeAnswers());
    if (!stays)
        pullPlug();
}

void UsbipBus::pullPlug()
{
    using enum PrinterScript::PulledPlug;
    const auto pulled = m_device.model().script().pulledPlug;
    if (!m_host || m_device.isFailing() || pulled == AtOnce)
        return leave();
    m_device.failAll(pulled == Stalls ? -EPIPE : -EPROTO);
    m_host->write(m_device.takeAnswers());
    m_agenda.add(steady_clock::now() + PrinterScript::hubNotices, {0, BusEvent::Action::Unplug});
}

void UsbipBus::leave()
{
    m_host.reset();
    m_device.reset();
}

void UsbipBus::apply(BusEvent::Action action)
{
    switch (action) {
    case BusEvent::Action::Unplug:
        pullPlug();
        break;
    case BusEvent::Action::Plug:
        if (!m_host)
            m_host.emplace();
        break;
    case BusEvent::Action::Hold:
    case BusEvent::Action::Release:
    case BusEvent::Action::Deny:
    case BusEvent::Action::Permit:
        break; // The kernel decides who has the interface.
    }
}

std::optional<std::chrono::milliseconds> UsbipBus::untilNextDue() const
{
    const Instant now = steady_clock::now();
    std::optional<Instant> due = m_device.nextDue(now);
    if (const std::optional<Instant> event = m_agenda.next())
        due = std::min(due.value_or(*event), *event);
    if (!due)
        return std::nullopt;
    return std::max(std::chrono::milliseconds(0), std::chrono::ceil<std::chrono::milliseconds>(*due - now));
}
