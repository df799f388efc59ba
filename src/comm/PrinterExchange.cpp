#include "PrinterExchange.h"

#include "Log.h"
#include "PrinterCommand.h"

namespace
{

constexpr std::chrono::seconds usualTimeout{60};
/// A tenth of the other commands' time: rousing a printer must not hold up a run.
constexpr std::chrono::seconds wakeUpTimeout{6};
/// The printer joins the network before it answers.
constexpr std::chrono::seconds joinTimeout{180};

} // namespace

std::chrono::seconds PrinterExchange::timeoutOf(quint16 cmd)
{
    switch (cmd) {
    case PrinterCommand::wakeUp:
        return wakeUpTimeout;
    case PrinterCommand::wifiConfiguration:
        return joinTimeout;
    default:
        return usualTimeout;
    }
}

void PrinterExchange::send(quint16 cmd, const QString &uri, const QByteArray &frame,
                           WTCUSBPrinter::HeadCallback headCallback, WTCUSBPrinter::DataCallback dataCallback)
{
    logInfo("send ACL:0x%X, uri:%@, data:%@", cmd, uri, frame);
    const std::chrono::milliseconds timeout = timeoutOf(cmd);
    WTCUSBPrinter::IOKit_sendACLWithURI(uri, frame, kACLHeadSize, static_cast<int>(timeout.count()),
                                        std::move(headCallback), std::move(dataCallback));
}

std::optional<AclReplyHeader> PrinterExchange::acceptedHeader(quint16 cmd, const std::optional<QByteArray> &header,
                                                              bool *stop)
{
    if (!header)
        return std::nullopt;
    const AclReplyHeader reply{*header};
    if (!reply.isWhole()) {
        *stop = true;
        return std::nullopt;
    }
    if (reply.command() != cmd) {
        const QString mismatch =
            formatText("acl 失败，失败原因：cmd not matched! send:0x%X, recv:0x%X", cmd, reply.command());
        logWarning("CMD not matched! msg:%@", mismatch);
        *stop = true;
        return std::nullopt;
    }
    return reply;
}

std::optional<WTError> PrinterExchange::headerFault(quint16 cmd, const std::optional<QByteArray> &header)
{
    if (!header)
        return std::nullopt;
    const AclReplyHeader reply{*header};
    if (!reply.isWhole())
        return WTError{printerErrorDomain, static_cast<int>(WTPrinterStatus::NoHeader),
                       formatText("the reply to 0x%X has a header of %ld bytes", cmd, header->size())};
    if (reply.command() != cmd)
        return WTError{printerErrorDomain, static_cast<int>(WTPrinterStatus::CommandMismatch),
                       formatText("0x%X was answered by a reply to 0x%X", cmd, reply.command())};
    return std::nullopt;
}

WTError PrinterExchange::refusal(quint16 cmd, quint16 result)
{
    return {printerResultDomain, result, formatText("the printer answered 0x%X with the result 0x%X", cmd, result)};
}

WTCUSBPrinter::HeadCallback PrinterExchange::usualHeadCallback(quint16 cmd, KeptHead head)
{
    return [cmd, head = std::move(head)](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
        logInfo("返回 ACL:0x%X, headData:%@", cmd, describeReplyHeader(header));
        head->fault = headerFault(cmd, header);
        if (const auto reply = acceptedHeader(cmd, header, stop)) {
            head->header = header;
            *dataLength = reply->dataLength();
        }
    };
}

WTError PrinterExchange::cause(quint16 cmd, const std::optional<WTError> &error, const ReplyHead &head)
{
    if (error)
        return *error;
    return head.fault.value_or(
        WTError{printerErrorDomain, static_cast<int>(WTPrinterStatus::NoHeader), formatText("no reply to 0x%X", cmd)});
}

std::function<void(const ResultAnswer &)> PrinterExchange::withCause(quint16 cmd, const std::optional<WTError> &error,
                                                                     KeptHead head,
                                                                     std::function<void(const ResultAnswer &)> callBack)
{
    return [cmd, error, head = std::move(head), callBack = std::move(callBack)](ResultAnswer answer) {
        if (answer.status != WTPrinterStatus::Success)
            answer.cause = cause(cmd, error, *head);
        callBack(answer);
    };
}
