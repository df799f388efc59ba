#pragma once

#include "AclReplyHeader.h"
#include "WTCUSBPrinter.h"

#include <QString>
#include <chrono>
#include <memory>
#include <optional>

/// What every printer command shares: the send with its log line and the check of the reply header.
namespace PrinterExchange
{

inline constexpr std::chrono::seconds usualTimeout{60};

/// The reply header of one send: kept by its head callback, read after it.
using KeptHeader = std::shared_ptr<std::optional<QByteArray>>;

/// Logs the frame and sends it.
void send(quint16 cmd, const QString &uri, const QByteArray &frame, std::chrono::milliseconds timeout,
          WTCUSBPrinter::HeadCallback headCallback, WTCUSBPrinter::DataCallback dataCallback);

/// The header, when it is whole and echoes `cmd`. A header of another length or, after a warning, for another command
/// sets `stop`; an absent one does nothing.
std::optional<AclReplyHeader> acceptedHeader(quint16 cmd, const std::optional<QByteArray> &header, bool *stop);

/// The usual head callback: logs the header, accepts it, asks for the data that it announces and puts it into `kept`,
/// which may be empty.
WTCUSBPrinter::HeadCallback usualHeadCallback(quint16 cmd, KeptHeader kept);

} // namespace PrinterExchange
