#pragma once

#include "EmulatedCommand.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTConfigurationRun.h"
#include "WTFailedView.h"
#include "WTInstallingView.h"
#include "WizardBed.h"

/// The wizard with one printer on its bus. It opens on a bare screen, from which a run can be pushed as from an entry
/// screen.
class RunBed : public WizardBed
{
public:
    explicit RunBed(const PrinterScript &script = {}, const ModelIdentity &identity = {});
    ~RunBed();

    /// Looks for the printer as the start screen does.
    WTPrinterPtr findPrinter();
    /// Sets printer and network and shows the run, as an entry screen does.
    void push(const WTPrinterPtr &printer, const QString &name, const QString &password);
    /// The screen that is showing. During a run it is the run's screen.
    WTView *current() { return window().contentView(); }
    /// Waits for the end of the run and returns the screen it ended on; null when it does not end.
    WTView *screenAtEnd();

    WTView &entry() { return *m_entry; }
    WTInstallingView &installing() { return *screen<WTInstallingView>(); }
    WTCompleteView &complete() { return *screen<WTCompleteView>(); }
    WTFailedView &failed() { return *screen<WTFailedView>(); }
    WTConfigFailedView &configFailed() { return *screen<WTConfigFailedView>(); }
    WTConfigurationRun &run() { return *installing().findChild<WTConfigurationRun *>(); }
    int sends(quint16 command) { return bus().record().count(command); }

private:
    WTView *m_entry = nullptr;
};
