#pragma once

#include "SpoolerPort.h"

/// A print spooler with the queues that the test says; none at first.
class FakeSpooler : public SpoolerPort
{
public:
    std::vector<PrintDestination> queues;
    bool answers = true; ///< Every printer's address does.

    std::vector<PrintDestination> destinations() override { return queues; }
    bool printerAnswers(const QString &, std::chrono::milliseconds) override { return answers; }
};
