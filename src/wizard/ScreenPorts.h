#pragma once

#include "HostCapabilities.h"

class DesktopPort;
class TimePort;

/// What the screens ask of the computer. The ports live longer than the screens.
struct ScreenPorts {
    TimePort &time;
    DesktopPort &desktop;
    HostCapabilities host;
};
