#pragma once

#include "SpoolerPort.h"

/// A print spooler with the queues that the test says; none at first.
class FakeSpooler : public SpoolerPort
{
public:
    std::vector<PrintDestination> queues;

    std::vector<PrintDestination> destinations() override { return queues; }
};
