#include "LinuxDesktop.h"

#include "DesktopPanels.h"

#include <QSysInfo>

using namespace Qt::Literals::StringLiterals;

QString LinuxDesktop::addPrinterCommandLine()
{
    return DesktopPanels::commandLine(DesktopPanels::addPrinter);
}

QString LinuxDesktop::privacySettingsCommandLine()
{
    return DesktopPanels::commandLine(DesktopPanels::privacySettings);
}

QString LinuxDesktop::hostReport()
{
    return u"Static hostname: %1\nOperating System: %2\nKernel: %3 %4\nArchitecture: %5\n"_s.arg(
        QSysInfo::machineHostName(), QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
        QSysInfo::currentCpuArchitecture());
}

QString LinuxDesktop::operatingSystemVersion()
{
    return QSysInfo::prettyProductName();
}
