#pragma once

#include "DemoWiFi.h"
#include "DesktopPort.h"
#include "EmulatedUsb.h"
#include "FasterTime.h"
#include "Machine.h"
#include "SpoolerPort.h"

/// A computer that exists only for the demo: one emulated printer on USB, the Wi-Fi and the print queue that
/// the story says, and a desktop that opens nothing.
class DemoMachine
{
public:
    /// @param speed how many times faster than the computer's own its time runs; at least 1.
    DemoMachine(const PrinterScript &script, const DemoHost &host, const ModelIdentity &model = {}, int speed = 1);

    Machine machine();
    /// What the printer was told so far.
    PrinterRecord printerRecord() const { return m_usb.record(); }

private:
    class OneQueueSpooler : public SpoolerPort
    {
    public:
        OneQueueSpooler(bool isPrinting, bool reachesPrinter)
            : m_isPrinting(isPrinting)
            , m_reachesPrinter(reachesPrinter)
        {
        }
        std::vector<PrintDestination> destinations() override;
        PrinterReach printerReach(const QString &, std::chrono::milliseconds) override
        {
            return m_reachesPrinter ? PrinterReach::Answers : PrinterReach::Silent;
        }

    private:
        const bool m_isPrinting;
        const bool m_reachesPrinter;
    };

    class QuietDesktop : public DesktopPort
    {
    public:
        QString addPrinterCommandLine() override;
        QString privacySettingsCommandLine() override;
        QString hostReport() override;
        QString operatingSystemVersion() override;
        DeviceAccess deviceAccess() override { return {}; }
    };

    FasterTime m_time;
    EmulatedUsb m_usb;
    OneQueueSpooler m_spooler;
    QuietDesktop m_desktop;
    DemoWiFi m_hostWiFi;
};
