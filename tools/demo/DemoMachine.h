#pragma once

#include "DesktopPort.h"
#include "EmulatedUsb.h"
#include "Machine.h"
#include "NoHostWiFi.h"
#include "SpoolerPort.h"
#include "SystemTime.h"

/// A computer that exists only for the demo: one emulated printer on USB, an idle spooler, no Wi-Fi of its own, and a
/// desktop that opens nothing. Its time is real.
class DemoMachine
{
public:
    explicit DemoMachine(const PrinterScript &script);

    Machine machine();
    /// What the printer was told so far.
    PrinterRecord printerRecord() const { return m_usb.record(); }

private:
    class IdleSpooler : public SpoolerPort
    {
    public:
        std::vector<PrintDestination> destinations() override;
    };

    class QuietDesktop : public DesktopPort
    {
    public:
        QString addPrinterCommandLine() override;
        QString privacySettingsCommandLine() override;
        QString hostReport() override;
        QString operatingSystemVersion() override;
    };

    SystemTime m_time;
    EmulatedUsb m_usb;
    IdleSpooler m_spooler;
    QuietDesktop m_desktop;
    NoHostWiFi m_hostWiFi;
};
