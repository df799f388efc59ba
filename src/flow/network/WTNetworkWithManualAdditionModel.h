#pragma once

#include "PrinterAnswer.h"
#include "WTPrinter.h"

#include <functional>

class SpoolerPort;

/// What the manual entry screen asks of the printer before a run.
class WTNetworkWithManualAdditionModel
{
public:
    explicit WTNetworkWithManualAdditionModel(SpoolerPort &spooler);

    /// Whether the printer's print queue is busy. Waits for the spooler.
    bool isWorkingWithPrintType(const QString &printType) const;

    /// Wakes the printer and makes it print its information page. `sent` gets the printer's answer, on the main thread.
    static void printInformationPage(const WTPrinterPtr &printer,
                                     const std::function<void(const ResultAnswer &)> &sent);

private:
    SpoolerPort &m_spooler;
};
