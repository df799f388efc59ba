#pragma once

#include "HostWiFiPort.h"

#include <NetworkManager.h>

/// Asks NetworkManager for the password that it has stored for the network `ssid`, in the profile that the device uses
/// now, else in the first other profile of that network. The password is the pre-shared key, else the WEP key in use.
///
/// To be called on the network thread, by .cpp files of this folder.
void requestNetworkSecret(NMClient *client, NMDeviceWifi *device, GCancellable *cancellable, const QString &ssid,
                          HostWiFiPort::SecretCallback done);
