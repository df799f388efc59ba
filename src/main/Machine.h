#pragma once

#include "HostCapabilities.h"

class DesktopPort;
class HostWiFiPort;
class SpoolerPort;
class TimePort;
class UsbPort;

/// All that the program asks of the computer it runs on. The ports outlive the program.
struct Machine {
    UsbPort &usb;
    TimePort &time;
    SpoolerPort &spooler;
    DesktopPort &desktop;
    HostWiFiPort &hostWiFi;
    HostCapabilities capabilities;
};
