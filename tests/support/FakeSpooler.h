#pragma once

#include "SpoolerPort.h"

/// A print spooler with the queues that the test says; none at first.
class FakeSpooler : public SpoolerPort
{
public:
    std::vector<PrintDestination> queues;
    PrinterReach reach = PrinterReach::Answers; ///< Of every printer.

    std::vector<PrintDestination> destinations() override { return queues; }
    PrinterReach printerReach(const QString &, std::chrono::milliseconds) override { return reach; }
};
