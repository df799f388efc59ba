#pragma once

#include "InPipe.h"
#include "PrinterModel.h"

#include <QByteArray>
#include <QByteArrayView>
#include <chrono>
#include <optional>

/// How far an OUT transfer has got.
struct OutProgress {
    std::optional<OutPlan> plan;                 ///< Absent until it is this transfer's turn.
    std::chrono::steady_clock::time_point due{}; ///< When the printer takes its bytes.
    bool taken = false;
    qsizetype sent = 0;
};

/// The two bulk pipes of a printer, with the printer at their end. Has no clock: the caller says what time it is. Not
/// thread-safe: the owner guards it.
class PrinterPipes
{
public:
    using Instant = std::chrono::steady_clock::time_point;

    enum class Outcome {
        Waiting,
        Complete,
        Stalled,  ///< The endpoint is halted until `clearHalt`.
        Overflow, ///< A packet did not fit.
        Unplug,   ///< The printer leaves the bus in the middle of the transfer.
    };

    /// Told what a frame brings about beside its reply.
    class Listener
    {
    public:
        virtual void received(const ReceivedFrame &frame) = 0;
        virtual void scheduled(const BusEvent &event) = 0;

    protected:
        ~Listener() = default;
    };

    PrinterPipes(PrinterModel model, qsizetype packetSize, Listener &listener);

    PrinterModel &model() { return m_model; }
    const PrinterModel &model() const { return m_model; }

    /// Continues an OUT transfer; there is one at a time.
    Outcome send(QByteArrayView bytes, OutProgress &progress, Instant now);
    /// Continues an IN transfer of `atMost` bytes, of which `bytes` holds what has come so far.
    Outcome receive(QByteArray &bytes, qsizetype atMost, Instant now);

    void clearHalt(bool in) { (in ? m_inHalted : m_outHalted) = false; }
    /// Forgets all that was under way.
    void reset();

    bool unplugIsDue(Instant now) const { return m_inPipe.unplugIsDue(now); }
    bool hasReplyDue(Instant now) const { return m_inPipe.hasDue(now); }
    std::optional<Instant> nextDue(Instant now) const { return m_inPipe.nextDue(now); }

private:
    void take(QByteArrayView bytes, Instant now);

    PrinterModel m_model;
    InPipe m_inPipe;
    Listener &m_listener;
    bool m_outHalted = false;
    bool m_inHalted = false;
};
