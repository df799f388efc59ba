#pragma once

#include "AclReplyHeader.h"
#include "PrinterAnswer.h"
#include "WTCUSBPrinter.h"

#include <QString>
#include <chrono>
#include <memory>
#include <optional>

/// What every printer command shares: the send with its log line and the check of the reply header.
namespace PrinterExchange
{

/// How long a command may take, from its frame to the end of its reply.
std::chrono::seconds timeoutOf(quint16 cmd);

/// What the head callback of one send leaves for the callbacks after it.
struct ReplyHead {
    std::optional<QByteArray> header; ///< The header, when it was accepted.
    std::optional<WTError> fault;     ///< Why the header that came was not accepted.
};
using KeptHead = std::shared_ptr<ReplyHead>;

/// Logs the frame and sends it; the command has the time that `timeoutOf` gives it.
void send(quint16 cmd, const QString &uri, const QByteArray &frame, WTCUSBPrinter::HeadCallback headCallback,
          WTCUSBPrinter::DataCallback dataCallback);

/// The header, when it is whole and echoes `cmd`. A header of another length or, after a warning, for another command
/// sets `stop`; an absent one does nothing.
std::optional<AclReplyHeader> acceptedHeader(quint16 cmd, const std::optional<QByteArray> &header, bool *stop);

/// Why a header is not accepted as the reply to `cmd`; absent for one that is, and for none at all.
std::optional<WTError> headerFault(quint16 cmd, const std::optional<QByteArray> &header);

/// The result with which a printer refused `cmd`, as an error.
WTError refusal(quint16 cmd, quint16 result);

/// The usual head callback: logs the header, accepts it, asks for the data that it announces and fills `head`.
WTCUSBPrinter::HeadCallback usualHeadCallback(quint16 cmd, KeptHead head);

/// Why a reply is not as it should be: the library's error, else the header's fault, else that nothing came.
WTError cause(quint16 cmd, const std::optional<WTError> &error, const ReplyHead &head);

/// Wraps `callBack`, so that every answer that is no success carries its `cause`.
std::function<void(const ResultAnswer &)> withCause(quint16 cmd, const std::optional<WTError> &error, KeptHead head,
                                                    std::function<void(const ResultAnswer &)> callBack);

} // namespace PrinterExchange
