#pragma once

#include "HostCapabilities.h"

#include <QString>

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
    QString logFolder = {}; ///< Where the program's log lies; empty where it has none.
};
