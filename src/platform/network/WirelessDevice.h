#pragma once

#include "HostWiFiPort.h"

#include <NetworkManager.h>
#include <QString>

// Questions to libnm's objects, to be asked on the network thread by .cpp files of this folder.

/// The device that counts: the one of the primary connection, else the first that NetworkManager manages and that is
/// joined, else the first managed one, else the first. Null without one.
NMDeviceWifi *defaultWirelessDevice(NMClient *client);

/// A network's name as readable text, also when its bytes are no UTF-8; empty for a hidden network.
QString readableName(GBytes *ssid);

/// The state of that device.
HostWiFiState wirelessState(NMClient *client, NMDeviceWifi *device);

/// What the device sees now: one record per name and security with the best signal, strongest first, then by name.
std::vector<VisibleNetwork> visibleNetworks(NMDeviceWifi *device);
