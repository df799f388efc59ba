#include "WTManager.h"

#include "ConfigurationOutcome.h"
#include "Log.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "SerialQueue.h"
#include "WTCommand.h"
#include "WiFiConfigurationPayload.h"
#include "isSafe.h"
#include "untrustedText.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// How long the printer needs to switch to its new network before it can be asked for its address.
constexpr auto switchPause = 5s;

/// The worker of configurations that are refused before they are sent. It lives as long as the process.
SerialQueue &refusals()
{
    static SerialQueue *const queue = new SerialQueue{u"configuration refusals"_s};
    return *queue;
}

WTCUSBPrinter::HeadCallback keepHeaderOnly(PrinterExchange::KeptHead head)
{
    return [head = std::move(head)](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
        constexpr quint16 cmd = PrinterCommand::wifiConfiguration;
        logInfo("recv ACL:0x%X, header:%@", cmd, describeReplyHeader(header));
        head->fault = PrinterExchange::headerFault(cmd, header);
        if (PrinterExchange::acceptedHeader(cmd, header, stop)) {
            head->header = header;
            *dataLength = 0;
        }
    };
}

ResultAnswer judge(const PrinterExchange::ReplyHead &head, bool hasData, const std::optional<WTError> &error)
{
    if (!head.header)
        return configurationOutcome(hasData, PrinterExchange::cause(PrinterCommand::wifiConfiguration, error, head), 0);
    return configurationOutcome(hasData, error, AclReplyHeader{*head.header}.result());
}

} // namespace

void WTManager::wifiConfigForPrinter(const QString &uri, quint32, const QString &ssid, const QString &password,
                                     StatusCallback callBack)
{
    if (!isSafe(ssid)) {
        logError("dirty data👉🏻ssid:%@", visibleText(ssid));
        return;
    }
    const auto payload = WiFiConfigurationPayload::encode(ssid, password);
    if (!payload) {
        logError("Nothing is sent: %@.", payload.error().message);
        refusals().async([callBack = std::move(callBack), refused = payload.error()] {
            callBack({.status = WTPrinterStatus::NoHeader, .cause = refused});
        });
        return;
    }

    constexpr quint16 cmd = PrinterCommand::wifiConfiguration;
    const auto head = std::make_shared<PrinterExchange::ReplyHead>();
    PrinterExchange::send(cmd, uri, WTCommand::PJLWithCMD(cmd, payload.value()), keepHeaderOnly(head),
                          [head, callBack = std::move(callBack)](const std::optional<QByteArray> &data,
                                                                 const std::optional<WTError> &error) {
                              const ResultAnswer answer = judge(*head, data.has_value(), error);
                              if (answer.status == WTPrinterStatus::Success)
                                  shared().time().sleep(switchPause);
                              callBack(answer);
                          });
}
