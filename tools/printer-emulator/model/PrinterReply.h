#pragma once

#include "PrinterFault.h"

#include <QByteArray>
#include <vector>

/// One transfer that the printer has to say.
struct InTransfer {
    enum class Kind {
        Data,   ///< `bytes`, ended by a short or a zero-length packet.
        Stall,  ///< The endpoint halts.
        Unplug, ///< The printer leaves the bus.
    };
    Kind kind = Kind::Data;
    QByteArray bytes{};
    /// After the transfer before it; for the first one, after the frame arrived.
    std::chrono::milliseconds delay{0};
};

/// A reply as the printer means it, before a fault has touched it.
struct PrinterReply {
    quint16 command = 0;
    quint16 result = 0;
    QByteArray data{};
    std::chrono::milliseconds time{0}; ///< That the command takes the printer.

    /// The reply as it travels under this fault.
    std::vector<InTransfer> transfers(const PrinterFault &fault) const;

private:
    QByteArray bytes(const PrinterFault &fault) const;
};
