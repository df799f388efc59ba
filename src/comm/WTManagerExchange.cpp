#include "WTManager.h"

#include "Log.h"
#include "MainThread.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "WTCommand.h"
#include "isSafe.h"

using namespace Qt::Literals::StringLiterals;

void WTManager::wt_cmd(quint16 cmd, const std::optional<QByteArray> &header, const StatusCallback &callBack)
{
    logInfo("send_cmd:0x%04X header data:%@", cmd, describeReplyHeader(header));
    if (!header || header->size() < AclReplyHeader::leastSize) {
        logErrorSynchronously("no header data!");
        callBack({.status = WTPrinterStatus::NoHeader, .cause = PrinterExchange::cause(cmd, {}, {})});
        return;
    }
    const AclReplyHeader reply{*header};
    logInfo("recv_cmd:0x%X result:0x%X", reply.command(), reply.result());
    if (reply.command() != cmd) {
        logErrorSynchronously("cmd not match!");
        callBack({.status = WTPrinterStatus::CommandMismatch, .cause = PrinterExchange::headerFault(cmd, header)});
        return;
    }
    if (callBack) {
        logInfo("cb_success!");
        callBack({.status = WTPrinterStatus::Success, .result = reply.result()});
    }
}

void WTManager::wt_wakeUpPrinter(const QString &uri, quint32 locationID, WakeUpCallback complete)
{
    if (!isSafe(uri)) {
        const QString message = u"invalid URI!"_s;
        logError("%@", message);
        if (complete)
            complete(false, message);
        return;
    }
    if (locationID == 0)
        logWarning("invalid locationID!");

    constexpr quint16 cmd = PrinterCommand::wakeUp;
    PrinterExchange::send(
        cmd, uri, WTCommand::PJLWithCMD(cmd),
        PrinterExchange::usualHeadCallback(cmd, std::make_shared<PrinterExchange::ReplyHead>()),
        [uri, complete = std::move(complete)](const std::optional<QByteArray> &data, const std::optional<WTError> &) {
            logInfo("ACL:0x%X, uri:%@, 最终返回 👉 data:%@", PrinterCommand::wakeUp, uri, describeReplyData(data));
            if (complete)
                onMainThread([complete] { complete(true, std::nullopt); });
        });
}

void WTManager::checkWiFiCapabilityFromPrinter(const QString &uri, quint32 locationID, StatusCallback callBack)
{
    if (!isSafe(uri))
        logError("checkWiFiCapabilityFromPrinter, printerURI: %@ locationID:0x%X", uri, locationID);

    constexpr quint16 cmd = PrinterCommand::wifiCapability;
    const auto head = std::make_shared<PrinterExchange::ReplyHead>();
    PrinterExchange::send(
        cmd, uri, WTCommand::PJLWithCMD(cmd, QByteArray()), PrinterExchange::usualHeadCallback(cmd, head),
        [head, callBack = std::move(callBack)](const std::optional<QByteArray> &, const std::optional<WTError> &error) {
            onMainThread([head, error, callBack] {
                if (error)
                    logError("FF81 返回错误：%@", error->domain);
                wt_cmd(cmd, head->header, PrinterExchange::withCause(cmd, error, head, callBack));
            });
        });
}
