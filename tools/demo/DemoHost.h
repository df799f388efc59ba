#pragma once

#include "HostWiFiPort.h"

#include <QString>
#include <vector>

/// The computer around the demo, as data: its own Wi-Fi and its print queue.
struct DemoHost {
    HostWiFiState wifi; ///< Without an interface by default.
    std::vector<VisibleNetwork> networks;
    QString storedPassword; ///< Of the network it is joined to.
    ScanPermission permission = ScanPermission::Unknown;
    bool isPrinting = false; ///< The printer's queue is processing a job.
};
