#include "WTManager.h"

#include "Log.h"
#include "MainThread.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "WTCommand.h"
#include "isSafe.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

/// A tenth of the other commands' time: rousing a printer must not hold up a run.
constexpr std::chrono::seconds wakeUpTimeout{6};

} // namespace

void WTManager::wt_cmd(quint16 cmd, const std::optional<QByteArray> &header, const StatusCallback &callBack)
{
    logInfo("send_cmd:0x%04X header data:%@", cmd, header);
    if (!header || header->size() < AclReplyHeader::leastSize) {
        logErrorSynchronously("no header data!");
        callBack(static_cast<int>(WTPrinterStatus::NoHeader), 0);
        return;
    }
    const AclReplyHeader reply{*header};
    logInfo("recv_cmd:0x%X result:0x%X", reply.command(), reply.result());
    if (reply.command() != cmd) {
        logErrorSynchronously("cmd not match!");
        callBack(static_cast<int>(WTPrinterStatus::CommandMismatch), 0);
        return;
    }
    if (callBack) {
        logInfo("cb_success!");
        callBack(static_cast<int>(WTPrinterStatus::Success), reply.result());
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
        cmd, uri, WTCommand::PJLWithCMD(cmd), wakeUpTimeout, PrinterExchange::usualHeadCallback(cmd, nullptr),
        [uri, complete = std::move(complete)](const std::optional<QByteArray> &data, const std::optional<WTError> &) {
            logInfo("ACL:0x%X, uri:%@, 最终返回 👉 data:%@", PrinterCommand::wakeUp, uri, data);
            if (complete)
                onMainThread([complete] { complete(true, std::nullopt); });
        });
}

void WTManager::checkWiFiCapabilityFromPrinter(const QString &uri, quint32 locationID, StatusCallback callBack)
{
    if (!isSafe(uri))
        logError("checkWiFiCapabilityFromPrinter, printerURI: %@ locationID:0x%X", uri, locationID);

    constexpr quint16 cmd = PrinterCommand::wifiCapability;
    const auto kept = std::make_shared<std::optional<QByteArray>>();
    PrinterExchange::send(
        cmd, uri, WTCommand::PJLWithCMD(cmd, QByteArray{}), PrinterExchange::usualTimeout,
        PrinterExchange::usualHeadCallback(cmd, kept),
        [kept, callBack = std::move(callBack)](const std::optional<QByteArray> &, const std::optional<WTError> &error) {
            onMainThread([kept, error, callBack] {
                if (error)
                    logError("FF81 返回错误：%@", error->domain);
                wt_cmd(PrinterCommand::wifiCapability, *kept, callBack);
            });
        });
}
