#pragma once

#include "SpoolerPort.h"

/// What a connection to this IP address and port comes to. Blocks, but not much longer than `atMost`. Any thread.
PrinterReach knockAt(const QString &address, int port, std::chrono::milliseconds atMost);
