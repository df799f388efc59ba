#pragma once

#include "EmulatedCommand.h"
#include "LibusbPort.h"
#include "SpoolerPort.h"
#include "UsbfsBed.h"
#include "VirtualTime.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTConfigurationRun.h"
#include "WTFailedView.h"
#include "WTInstallingView.h"
#include "WTWindow.h"

#include <functional>
#include <vector>

/// A spooler that lists what the test says.
class ScriptedSpooler : public SpoolerPort
{
public:
    std::vector<PrintDestination> destinations() override { return queues; }

    std::vector<PrintDestination> queues;
};

/// The screens of a configuration run in their window, over real libusb with one emulated printer on its bus. One bed
/// at a time.
class RunBed
{
public:
    /// Runs the main thread until the condition holds; false when that takes too long.
    using Wait = std::function<bool(const UsbfsBed &bus, const std::function<bool()> &done)>;

    explicit RunBed(VirtualTime &time, const PrinterScript &script = {});
    RunBed(TimePort &time, Wait wait, const PrinterScript &script = {}, const ModelIdentity &identity = {});
    ~RunBed();

    bool waitFor(const std::function<bool()> &done);
    /// Looks for the printer as the start screen does.
    WTPrinterPtr findPrinter();
    /// As an entry screen pushes the run.
    void push(const WTPrinterPtr &printer, const QString &name, const QString &password);
    /// The screen that is showing; the run's own while it lasts.
    WTView *screen() const { return m_window.contentView(); }
    /// Waits for the run's end and answers where it ended; null when it does not end.
    WTView *screenAtEnd();

    UsbfsBed &bus() { return m_bus; }
    ScriptedSpooler &spooler() { return m_spooler; }
    WTWindow &window() { return m_window; }
    WTView &entry() { return *m_entry; }
    WTInstallingView &installing() { return *m_installing; }
    WTCompleteView &complete() { return *m_complete; }
    WTFailedView &failed() { return *m_failed; }
    WTConfigFailedView &configFailed() { return *m_configFailed; }
    WTConfigurationRun &run();
    int sends(quint16 command) const { return m_bus.record().count(command); }

private:
    Wait m_wait;
    UsbfsBed m_bus;
    LibusbPort m_usb;
    ScriptedSpooler m_spooler;
    WTWindow m_window;
    WTView *m_entry;
    WTInstallingView *m_installing;
    WTCompleteView *m_complete;
    WTFailedView *m_failed;
    WTConfigFailedView *m_configFailed;
};
