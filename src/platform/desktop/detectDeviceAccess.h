#pragma once

#include "DeviceAccess.h"

/// What the system's udev rules and its login service say at this moment. A host without a login service keeps nobody
/// off its devices that way.
DeviceAccess detectDeviceAccess();
