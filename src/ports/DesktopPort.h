#pragma once

#include "DeviceAccess.h"

#include <QString>

/// The desktop the program runs on: its panels and its description of the host.
class DesktopPort
{
public:
    virtual ~DesktopPort() = default;

    /// A shell command line that opens the desktop's add-printer panel and returns at once. Empty where there is no
    /// such panel.
    virtual QString addPrinterCommandLine() = 0;

    /// A shell command line that opens the desktop's Wi-Fi or privacy settings and returns at once. Empty where there
    /// are none.
    virtual QString privacySettingsCommandLine() = 0;

    /// The host's description: lines of a key, a colon and a value. Empty when the host has none to give.
    virtual QString hostReport() = 0;

    /// Name and version of the operating system, as people say them.
    virtual QString operatingSystemVersion() = 0;

    /// Whether this person may use the printers that are plugged into the computer, as far as the system tells.
    virtual DeviceAccess deviceAccess() = 0;
};
