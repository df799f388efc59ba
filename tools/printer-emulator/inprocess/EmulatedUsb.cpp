#include "EmulatedUsb.h"

#include "EmulatedBus.h"

#include <utility>

namespace
{
/// The printer, claimed until this object is destroyed. Keeps the bus alive.
class EmulatedConnection final : public UsbConnection
{
public:
    explicit EmulatedConnection(std::shared_ptr<EmulatedBus> bus)
        : m_bus(std::move(bus))
    {
    }
    ~EmulatedConnection() override { m_bus->release(); }
    EmulatedConnection(const EmulatedConnection &) = delete;
    EmulatedConnection &operator=(const EmulatedConnection &) = delete;

    std::optional<WTError> write(QByteArrayView bytes) override { return m_bus->write(bytes); }
    WTResult<QByteArray> read(qsizetype atMost) override
    {
        // Asks for whole packets: a packet larger than the room left would be an overflow.
        if (m_unread.isEmpty()) {
            constexpr qsizetype packet = EmulatedBus::packetSize;
            WTResult<QByteArray> received = m_bus->read((atMost + packet - 1) / packet * packet);
            if (!received)
                return received;
            m_unread = std::move(received.value());
        }
        QByteArray bytes = m_unread.left(atMost);
        m_unread.remove(0, bytes.size());
        return bytes;
    }
    QByteArray drainInput() override { return std::exchange(m_unread, {}) + m_bus->drainInput(); }
    void cancel() override { m_bus->cancel(); }

private:
    const std::shared_ptr<EmulatedBus> m_bus;
    QByteArray m_unread;
};
} // namespace

EmulatedUsb::EmulatedUsb(TimePort &time, PrinterModel printer)
    : m_bus(std::make_shared<EmulatedBus>(time, std::move(printer)))
{
}

EmulatedUsb::~EmulatedUsb()
{
    m_bus->stopWatching();
}

void EmulatedUsb::plug()
{
    m_bus->apply(BusEvent::Action::Plug);
}

void EmulatedUsb::unplug()
{
    m_bus->apply(BusEvent::Action::Unplug);
}

PrinterRecord EmulatedUsb::record() const
{
    return m_bus->record();
}

void EmulatedUsb::setScript(PrinterScript script)
{
    m_bus->setScript(std::move(script));
}

void EmulatedUsb::watch(std::vector<quint16> vendorIDs, ListChanged changed)
{
    m_bus->watch(std::move(vendorIDs), std::move(changed));
}

void EmulatedUsb::stopWatching()
{
    m_bus->stopWatching();
}

UsbDeviceList EmulatedUsb::devices(const std::vector<quint16> &vendorIDs)
{
    return m_bus->devices(vendorIDs);
}

WTResult<std::unique_ptr<UsbConnection>> EmulatedUsb::open(const UsbDevice &device)
{
    if (std::optional<WTError> failed = m_bus->claim(device))
        return *std::move(failed);
    return std::unique_ptr<UsbConnection>(std::make_unique<EmulatedConnection>(m_bus));
}

std::optional<WTError> EmulatedUsb::obstacle(const UsbDevice &device)
{
    return m_bus->obstacle(device);
}
