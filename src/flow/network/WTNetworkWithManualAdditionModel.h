#pragma once

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

    /// Wakes the printer and has it print its information page. `sent` runs on the main thread at the end, whatever the
    /// printer answered.
    static void printInformationPage(const WTPrinterPtr &printer, const std::function<void()> &sent);

private:
    SpoolerPort &m_spooler;
};
