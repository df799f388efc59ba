#pragma once

#include "DesktopPort.h"

#include <chrono>
#include <future>

/// The desktop that "XDG_CURRENT_DESKTOP" names, through the panels whose programs are on the path.
class LinuxDesktop : public DesktopPort
{
public:
    /// Asks for the host's own report at once, so that it is there when it is wanted.
    /// @param reportLimit how long that may take before the short one serves.
    explicit LinuxDesktop(std::chrono::milliseconds reportLimit = std::chrono::seconds{2});

    QString addPrinterCommandLine() override;
    QString privacySettingsCommandLine() override;
    QString hostReport() override;
    QString operatingSystemVersion() override;

private:
    std::shared_future<QString> m_report;
};
