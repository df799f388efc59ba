#include "LinuxDesktop.h"

#include "AlternateSignalStack.h"
#include "DesktopPanels.h"
#include "detectDeviceAccess.h"

#include <QProcess>
#include <QSysInfo>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// What hostnamectl prints; empty when it is absent, fails (without a message bus, say) or takes longer than `limit`.
QString hostnameServiceReport(std::chrono::milliseconds limit)
{
    const AlternateSignalStack signalStack;
    QProcess process;
    process.start(u"hostnamectl"_s, {u"status"_s}, QIODevice::ReadOnly);
    if (!process.waitForFinished(static_cast<int>(limit.count()))) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    const bool answered = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return answered ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

QString shortReport()
{
    return u"Static hostname: %1\nOperating System: %2\nKernel: %3 %4\nArchitecture: %5\n"_s.arg(
        QSysInfo::machineHostName(), QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
        QSysInfo::currentCpuArchitecture());
}

} // namespace

LinuxDesktop::LinuxDesktop(std::chrono::milliseconds reportLimit)
    : m_report(std::async(std::launch::async, hostnameServiceReport, reportLimit))
{
}

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
    const QString report = m_report.get();
    return report.isEmpty() ? shortReport() : report;
}

QString LinuxDesktop::operatingSystemVersion()
{
    return QSysInfo::prettyProductName();
}

DeviceAccess LinuxDesktop::deviceAccess()
{
    return detectDeviceAccess();
}
