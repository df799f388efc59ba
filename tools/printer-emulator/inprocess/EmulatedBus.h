#pragma once

#include "Agenda.h"
#include "PrinterPipes.h"
#include "SerialQueue.h"
#include "TimedLock.h"
#include "UsbPort.h"

#include <condition_variable>
#include <optional>

/// The bus behind EmulatedUsb: one printer, who may open it, and the transfers of the connection that has claimed it.
class EmulatedBus final : private TimedLock::Content, private PrinterPipes::Listener
{
public:
    EmulatedBus(TimePort &time, PrinterModel printer);
    ~EmulatedBus();
    EmulatedBus(const EmulatedBus &) = delete;
    EmulatedBus &operator=(const EmulatedBus &) = delete;

    static constexpr qsizetype packetSize = 512;

    void apply(BusEvent::Action action);
    PrinterRecord record() const;
    void setScript(PrinterScript script);

    void watch(std::vector<quint16> vendorIDs, UsbPort::ListChanged changed);
    void stopWatching();
    UsbDeviceList devices(const std::vector<quint16> &vendorIDs) const;

    std::optional<WTError> obstacle(const UsbDevice &device) const;
    /// Claims the printer until `release`; absent when that succeeded.
    std::optional<WTError> claim(const UsbDevice &device);
    void release();
    std::optional<WTError> write(QByteArrayView bytes);
    WTResult<QByteArray> read(qsizetype atMost);
    QByteArray drainInput();
    void cancel();

private:
    using Instant = TimePort::Instant;

    /// What the connection is doing. A connection does one thing at a time.
    struct Transfer {
        bool in = false;
        QByteArray bytes; ///< To send, or received so far.
        qsizetype atMost = 0;
        OutProgress out;
        PrinterPipes::Outcome outcome = PrinterPipes::Outcome::Waiting;
    };

    void settle() override;
    std::optional<Instant> nextDue(Instant now) const override;
    void received(const ReceivedFrame &) override {}
    void scheduled(const BusEvent &event) override;

    std::optional<WTError> refusal(const UsbDevice &device) const;
    void applyNow(BusEvent::Action action);
    void scheduleStart();
    void setPlugged(bool plugged);
    void report();
    UsbDevice facts() const;
    /// Waits for the transfer's end; absent when it completed.
    std::optional<WTError> run(Transfer &transfer);

    TimePort &m_time;
    mutable TimedLock m_lock;
    std::condition_variable m_moved;
    PrinterPipes m_pipes;
    Agenda m_agenda;
    bool m_plugged = false;
    bool m_held = false;
    bool m_permitted = true;

    bool m_claimed = false;
    bool m_gone = false; ///< The printer left since the claim.
    bool m_cancelled = false;
    Transfer *m_transfer = nullptr;

    std::vector<quint16> m_watchedVendors;
    UsbPort::ListChanged m_changed;
    SerialQueue m_watchThread; ///< Last, so that it ends first: its jobs use the other members.
};
