#pragma once

#include "DesktopPort.h"

#include <chrono>

/// The desktop that "XDG_CURRENT_DESKTOP" names, through the panels whose programs are on the path.
class LinuxDesktop : public DesktopPort
{
public:
    /// @param reportLimit how long the host's own report may take before the short one serves.
    explicit LinuxDesktop(std::chrono::milliseconds reportLimit = std::chrono::seconds{2})
        : m_reportLimit(reportLimit)
    {
    }

    QString addPrinterCommandLine() override;
    QString privacySettingsCommandLine() override;
    QString hostReport() override;
    QString operatingSystemVersion() override;

private:
    std::chrono::milliseconds m_reportLimit;
};
