#include "WTManager.h"

#include "AclFrame.h"
#include "Log.h"
#include "MainThread.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "WTCommand.h"

namespace
{

constexpr quint16 wirelessPage = 0x0002;

/// The old dialect takes the page's number as payload, the new one in the header's length field.
QByteArray informationPageFrame(bool oldAcl)
{
    if (oldAcl)
        return WTCommand::ACLWithCMD(PrinterCommand::informationPage, AclFrame::bytesOf(quint16_be{wirelessPage}));
    AclFrame::ShortHeader header;
    header.command = PrinterCommand::informationPage;
    header.payloadLength = wirelessPage;
    return AclFrame::bytesOf(header);
}

void logOutcome(const QString &uri, const std::optional<QByteArray> &data, const std::optional<WTError> &error)
{
    constexpr quint16 cmd = PrinterCommand::informationPage;
    if (data && !error) {
        logInfo("ACL:0x%X, uri:%@, 最终返回 👉 data:%@", cmd, uri, describeReplyData(data));
        return;
    }
    const auto reason = error ? std::optional{error->message} : std::nullopt;
    logInfo("ACL:0x%X, uri:%@, 最终返回 👉 data:%@ error:%@", cmd, uri, describeReplyData(data), reason);
}

} // namespace

void WTManager::printingWiFiInfoFromPrinter(const QString &uri, quint32, const QString &model, StatusCallback callBack)
{
    constexpr quint16 cmd = PrinterCommand::informationPage;
    const QByteArray frame = informationPageFrame(shared().oldAclPrinter(model));
    const auto head = std::make_shared<PrinterExchange::ReplyHead>();
    PrinterExchange::send(cmd, uri, WTCommand::PJLWithACLData(frame), PrinterExchange::usualHeadCallback(cmd, head),
                          [uri, head, callBack = std::move(callBack)](const std::optional<QByteArray> &data,
                                                                      const std::optional<WTError> &error) {
                              logOutcome(uri, data, error);
                              onMainThread([head, error, callBack] {
                                  wt_cmd(cmd, head->header, PrinterExchange::withCause(cmd, error, head, callBack));
                              });
                          });
}
