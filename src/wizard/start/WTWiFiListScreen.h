#pragma once

#include "WTPrinter.h"
#include "WTView.h"

/// What the start screen needs of the screen that lists the networks.
class WTWiFiListScreen : public WTView
{
    Q_OBJECT

public:
    using WTView::WTView;

    virtual void setPrinter(const WTPrinterPtr &printer) = 0;
    /// Starts the screen's work; called right after it was pushed.
    virtual void ff_discoverPrinterAndUpdataWIFIList() = 0;
};
