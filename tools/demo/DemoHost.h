#pragma once

#include "HostWiFiPort.h"

#include <QString>
#include <vector>

/// What a story says of the demo's computer: its own Wi-Fi and its print queue.
struct DemoHost {
    HostWiFiState wifi; ///< By default the computer has no Wi-Fi interface.
    std::vector<VisibleNetwork> networks;
    QString storedPassword; ///< Of the network that the computer is joined to.
    ScanPermission permission = ScanPermission::Unknown;
    bool isPrinting = false;    ///< The printer's queue is processing a job.
    bool reachesPrinter = true; ///< The printer answers at its new address.
};
