#pragma once

#include "HostWiFiPort.h"
#include "NetworkThread.h"
#include "TimePort.h"

#include <NetworkManager.h>

/// Asks the device to look around and calls `done` once, on the network thread: when the device has scanned since this
/// call, or with the networks known by then when 10 s have passed, when the host refuses to scan again so soon, or when
/// `cancellable` is cancelled. `thread` and `time` live until then.
///
/// To be called on the network thread, by .cpp files of this folder.
void startNetworkScan(NMDeviceWifi *device, NetworkThread &thread, TimePort &time, GCancellable *cancellable,
                      HostWiFiPort::NetworksCallback done);
