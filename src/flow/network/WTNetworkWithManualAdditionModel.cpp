#include "WTNetworkWithManualAdditionModel.h"

#include "MainThread.h"
#include "PrintQueueBusyCheck.h"
#include "WTManager.h"

WTNetworkWithManualAdditionModel::WTNetworkWithManualAdditionModel(SpoolerPort &spooler)
    : m_spooler(spooler)
{
}

bool WTNetworkWithManualAdditionModel::isWorkingWithPrintType(const QString &printType) const
{
    return ::isWorkingWithPrintType(m_spooler, printType, BusyCheckVariant::ManualEntry);
}

void WTNetworkWithManualAdditionModel::printInformationPage(const WTPrinterPtr &printer,
                                                            const std::function<void(const ResultAnswer &)> &sent)
{
    const auto print = [printer, sent] {
        WTManager::printingWiFiInfoFromPrinter(
            printer->usbObj->URI(), printer->usbObj->locationID, printer->printerType(),
            [sent](const ResultAnswer &answer) { onMainThread([sent, answer] { sent(answer); }); });
    };
    WTManager::wt_wakeUpPrinter(printer->usbObj->URI(), printer->usbObj->locationID,
                                [print](bool, const std::optional<QString> &) { onMainThread(print); });
}
