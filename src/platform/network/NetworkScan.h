#pragma once

#include "HostWiFiPort.h"
#include "NetworkThread.h"
#include "TimePort.h"

#include <NetworkManager.h>

/// One request to look around: asks the device to scan, waits until its last-scan time is newer (at most 10 s),
/// answers, and is gone. Where the host refuses to scan again so soon, the answer is what it knows. Network thread
/// only; for .cpp files of this folder.
/// Cancelling ends it at once, with what is known.
void startNetworkScan(NMDeviceWifi *device, NetworkThread &thread, TimePort &time, GCancellable *cancellable,
                      HostWiFiPort::NetworksCallback done);
