#pragma once

#include "EmulatedCommand.h"
#include "FakeHost.h"
#include "FakeSpooler.h"
#include "LibusbPort.h"
#include "UsbfsBed.h"
#include "VirtualTime.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTConfigurationRun.h"
#include "WTFailedView.h"
#include "WTInstallingView.h"
#include "WTWindow.h"
#include "WizardScreens.h"

#include <functional>

/// The wizard's screens in their window, over real libusb with one emulated printer on its bus. The window opens on a
/// bare screen, from which a run can be pushed as from an entry screen. One bed at a time.
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
    /// Sets printer and network and shows the run, as an entry screen does.
    void push(const WTPrinterPtr &printer, const QString &name, const QString &password);
    /// The screen that is showing. During a run it is the run's screen.
    WTView *screen() const { return window().contentView(); }
    /// Waits for the end of the run and returns the screen it ended on; null when it does not end.
    WTView *screenAtEnd();

    UsbfsBed &bus() { return m_bus; }
    FakeSpooler &spooler() { return m_spooler; }
    WTWindow &window() const { return m_screens->window(); }
    template <typename Screen>
    Screen &screenOf() const
    {
        return *window().findChild<Screen *>();
    }
    WTView &entry() { return *m_entry; }
    WTInstallingView &installing() const { return screenOf<WTInstallingView>(); }
    WTCompleteView &complete() const { return screenOf<WTCompleteView>(); }
    WTFailedView &failed() const { return screenOf<WTFailedView>(); }
    WTConfigFailedView &configFailed() const { return screenOf<WTConfigFailedView>(); }
    WTConfigurationRun &run();
    int sends(quint16 command) const { return m_bus.record().count(command); }

private:
    Wait m_wait;
    UsbfsBed m_bus;
    LibusbPort m_usb;
    FakeSpooler m_spooler;
    FakeDesktop m_desktop;
    FakeHostWiFi m_hostWiFi;
    std::unique_ptr<WizardScreens> m_screens;
    WTView *m_entry = nullptr;
};
