#pragma once

#include "HostCapabilities.h"

class DesktopPort;
class HostWiFiPort;
class SpoolerPort;
class TimePort;

/// What the subcommands ask of the computer. The ports live longer than the subcommands.
struct CommandPorts {
    TimePort &time;
    SpoolerPort &spooler;
    DesktopPort &desktop;
    HostWiFiPort &hostWiFi;
    HostCapabilities host;
};
