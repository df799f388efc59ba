#pragma once

#include "TimePort.h"
#include "UsbPort.h"

#include <algorithm>
#include <utility>

/// One printer that exists in memory only. It takes every frame and answers with the given bytes, at most `slice` of
/// them in one read; after the last one it is unplugged. The bytes outlive it.
class SlicedWire : public UsbPort
{
public:
    SlicedWire(QByteArrayView bytes, qsizetype slice)
        : m_bytes(bytes)
        , m_slice(slice)
    {
    }

    static UsbDevice printer()
    {
        UsbDevice device;
        device.manufacturer = QStringLiteral("Quillmark");
        device.product = QStringLiteral("QZ100");
        return device;
    }

    qsizetype bytesLeft() const { return m_bytes.size(); }

    void watch(std::vector<quint16>, ListChanged) override {}
    void stopWatching() override {}
    UsbDeviceList devices(const std::vector<quint16> &) override { return {printer()}; }
    WTResult<std::unique_ptr<UsbConnection>> open(const UsbDevice &) override
    {
        return std::unique_ptr<UsbConnection>(std::make_unique<Connection>(*this));
    }
    std::optional<WTError> obstacle(const UsbDevice &) override { return std::nullopt; }

private:
    class Connection : public UsbConnection
    {
    public:
        explicit Connection(SlicedWire &wire)
            : m_wire(wire)
        {
        }
        std::optional<WTError> write(QByteArrayView) override { return std::nullopt; }
        WTResult<QByteArray> read(qsizetype atMost) override
        {
            QByteArrayView &bytes = m_wire.m_bytes;
            if (bytes.isEmpty())
                return WTError{usbErrorDomain, static_cast<int>(UsbErrorCode::Unplugged), {}};
            const qsizetype size = std::min({atMost, m_wire.m_slice, bytes.size()});
            const QByteArray slice = bytes.first(size).toByteArray();
            bytes = bytes.sliced(size);
            return slice;
        }
        QByteArray drainInput() override { return std::exchange(m_wire.m_bytes, {}).toByteArray(); }
        void cancel() override {}

    private:
        SlicedWire &m_wire;
    };

    QByteArrayView m_bytes;
    qsizetype m_slice;
};

/// Time that stands still: no limit ever passes.
class StandingTime : public TimePort
{
public:
    Instant now() const override { return {}; }
    void sleep(Duration) override {}
    std::unique_ptr<Timer> after(Duration, std::function<void()>) override { return std::make_unique<Timer>(); }
};
