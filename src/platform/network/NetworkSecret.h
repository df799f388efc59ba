#pragma once

#include "HostWiFiPort.h"

#include <NetworkManager.h>

/// Asks NetworkManager for the stored password of the network of this name: the profile in use on the device first,
/// then any other. The pre-shared key, else the WEP key in use. Network thread only; for .cpp files of this folder.
void requestNetworkSecret(NMClient *client, NMDeviceWifi *device, GCancellable *cancellable, const QString &ssid,
                          HostWiFiPort::SecretCallback done);
