#include "PrinterWatch.h"

#include "MainThread.h"
#include "WTManager.h"

#include <QPointer>

PrinterWatch::~PrinterWatch()
{
    WTManager::shared().wt_stopDiscoverPrinter();
    WTManager::shared().setPrinterListListener({});
}

void PrinterWatch::start()
{
    WTManager &manager = WTManager::shared();
    manager.setPrinterListListener([watch = QPointer(this)] {
        onMainThread([watch, found = WTManager::shared().printerList().objectEnumerator()] {
            if (!watch)
                return;
            watch->m_printers.assign(found.begin(), found.end());
            Q_EMIT watch->changed();
        });
    });
    manager.wt_startDiscoverPrinter();
}
