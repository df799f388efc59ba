#pragma once

#include "HostCapabilities.h"

class DesktopPort;
class HostWiFiPort;
class SpoolerPort;
class TimePort;

/// What the screens ask of the computer. The ports live longer than the screens.
struct ScreenPorts {
    TimePort &time;
    SpoolerPort &spooler;
    DesktopPort &desktop;
    HostWiFiPort &hostWiFi;
    HostCapabilities host;
};
