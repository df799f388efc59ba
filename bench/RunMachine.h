#pragma once

#include "CupsBed.h"
#include "CupsSpooler.h"
#include "FakeHost.h"
#include "HostCapabilities.h"
#include "HurriedTime.h"
#include "LibusbPort.h"
#include "Samples.h"
#include "ScreenPorts.h"
#include "SpoolerPort.h"
#include "UsbfsBed.h"

/// A real spooler that is timed while it is asked.
class TimedSpooler : public SpoolerPort
{
public:
    explicit TimedSpooler(std::size_t mostQuestions)
        : questions(mostQuestions)
    {
    }

    std::vector<PrintDestination> destinations() override
    {
        std::vector<PrintDestination> answer;
        questions.measure([&] { answer = m_spooler.destinations(); });
        return answer;
    }

    PrinterReach printerReach(const QString &, std::chrono::milliseconds) override { return PrinterReach::Answers; }

    Samples questions;

private:
    CupsSpooler m_spooler{HostCapabilities{}};
};

/// The machine under the wizard: one printer on its bus that answers at once, one idle print queue, a radio that has
/// networks.
struct RunMachine {
    explicit RunMachine(std::size_t mostRuns);
    ~RunMachine() { bus.unplug(); }

    ScreenPorts screenPorts() { return {time, spooler, desktop, hostWiFi, {}}; }
    /// The printer's name for the library.
    QString uri();

    const ModelIdentity identity{.model = QStringLiteral("QZ200")};
    HurriedTime time;
    UsbfsBed bus{time};
    LibusbPort usb{time};
    CupsBed cups;
    TimedSpooler spooler;
    FakeHostWiFi hostWiFi;
    FakeDesktop desktop;
};
