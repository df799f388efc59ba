#include "PrinterExchange.h"

#include "Log.h"

void PrinterExchange::send(quint16 cmd, const QString &uri, const QByteArray &frame, std::chrono::milliseconds timeout,
                           WTCUSBPrinter::HeadCallback headCallback, WTCUSBPrinter::DataCallback dataCallback)
{
    logInfo("send ACL:0x%X, uri:%@, data:%@", cmd, uri, frame);
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

WTCUSBPrinter::HeadCallback PrinterExchange::usualHeadCallback(quint16 cmd, KeptHeader kept)
{
    return [cmd, kept = std::move(kept)](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
        logInfo("返回 ACL:0x%X, headData:%@", cmd, header);
        const auto reply = acceptedHeader(cmd, header, stop);
        if (!reply)
            return;
        if (kept)
            *kept = header;
        *dataLength = reply->dataLength();
    };
}
