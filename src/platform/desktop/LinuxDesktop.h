#pragma once

#include "DesktopPort.h"

/// The desktop that "XDG_CURRENT_DESKTOP" names, through the panels whose programs are on the path.
class LinuxDesktop : public DesktopPort
{
public:
    QString addPrinterCommandLine() override;
    QString privacySettingsCommandLine() override;
    /// The lines that hostnamectl prints, made without that program: its start would hold up the first window.
    QString hostReport() override;
    QString operatingSystemVersion() override;
};
