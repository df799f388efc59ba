#include "DemoMachine.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The shell's command that does nothing.
const QString noCommand = u":"_s;

} // namespace

DemoMachine::DemoMachine(const PrinterScript &script, const DemoHost &host, const ModelIdentity &model, int speed)
    : m_time(speed)
    , m_usb(m_time, PrinterModel(model, script))
    , m_spooler(host.isPrinting, host.reachesPrinter)
    , m_hostWiFi(m_time, host)
{
}

Machine DemoMachine::machine()
{
    return {m_usb, m_time, m_spooler, m_desktop, m_hostWiFi, HostCapabilities{.hasUnifiedLog = false}};
}

std::vector<PrintDestination> DemoMachine::OneQueueSpooler::destinations()
{
    return {{.name = "Quillmark_QZ100", .printerState = m_isPrinting ? "4" : "3"}};
}

QString DemoMachine::QuietDesktop::addPrinterCommandLine()
{
    return noCommand;
}

QString DemoMachine::QuietDesktop::privacySettingsCommandLine()
{
    return noCommand;
}

QString DemoMachine::QuietDesktop::hostReport()
{
    return {};
}

QString DemoMachine::QuietDesktop::operatingSystemVersion()
{
    return u"Demo machine"_s;
}
