#pragma once

#include "DesktopPort.h"

#include <chrono>
#include <future>

/// The desktop that "XDG_CURRENT_DESKTOP" names, through the panels whose programs are on the path.
class LinuxDesktop : public DesktopPort
{
public:
    /// Starts `hostnamectl` in the background, so that its report is there when somebody asks for it.
    /// @param reportLimit how long that may take; after it `hostReport` answers a short report of its own.
    explicit LinuxDesktop(std::chrono::milliseconds reportLimit = std::chrono::seconds{2});

    QString addPrinterCommandLine() override;
    QString privacySettingsCommandLine() override;
    QString hostReport() override;
    QString operatingSystemVersion() override;
    DeviceAccess deviceAccess() override;

private:
    std::shared_future<QString> m_report;
};
