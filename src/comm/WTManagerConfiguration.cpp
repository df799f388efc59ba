#include "WTManager.h"

#include "ConfigurationOutcome.h"
#include "Log.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "SerialQueue.h"
#include "WTCommand.h"
#include "WifiConfigurationPayload.h"
#include "isSafe.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// The printer joins the network before it answers.
constexpr auto joinTimeout = 180s;
/// What the printer needs to switch to its new network before it can be asked for its address.
constexpr auto switchPause = 5s;

/// The worker of configurations that are refused before they are sent. It lives as long as the process.
SerialQueue &refusals()
{
    static SerialQueue *const queue = new SerialQueue{u"configuration refusals"_s};
    return *queue;
}

WTCUSBPrinter::HeadCallback keepResult(std::shared_ptr<quint16> kept)
{
    return [kept = std::move(kept)](const std::optional<QByteArray> &header, quint32 *dataLength, bool *stop) {
        logInfo("recv ACL:0x%X, header:%@", PrinterCommand::wifiConfiguration, header);
        if (const auto reply = PrinterExchange::acceptedHeader(PrinterCommand::wifiConfiguration, header, stop)) {
            *kept = reply->result();
            *dataLength = 0;
        }
    };
}

} // namespace

void WTManager::wifiConfigForPrinter(const QString &uri, quint32, const QString &ssid, const QString &password,
                                     StatusCallback callBack)
{
    if (!isSafe(ssid)) {
        logError("dirty data👉🏻ssid:%@", ssid);
        return;
    }
    const auto payload = WifiConfigurationPayload::encode(ssid, password);
    if (!payload) {
        logError("The password is longer than the %ld bytes that a printer takes; nothing is sent.",
                 WifiConfigurationPayload::passwordLimit);
        refusals().async(
            [callBack = std::move(callBack)] { callBack(static_cast<int>(WTPrinterStatus::NoHeader), 0); });
        return;
    }

    constexpr quint16 cmd = PrinterCommand::wifiConfiguration;
    const auto result = std::make_shared<quint16>(0);
    PrinterExchange::send(cmd, uri, WTCommand::PJLWithCMD(cmd, payload), joinTimeout, keepResult(result),
                          [result, callBack = std::move(callBack)](const std::optional<QByteArray> &data,
                                                                   const std::optional<WTError> &error) {
                              const auto outcome = configurationOutcome(data.has_value(), error, *result);
                              if (outcome.status == WTPrinterStatus::Success)
                                  shared().time().sleep(switchPause);
                              callBack(static_cast<int>(outcome.status), outcome.result);
                          });
}
