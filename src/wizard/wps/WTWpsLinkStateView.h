#pragma once

#include "WpsOutcomeView.h"

/// Outcome of the printer-menu ways: what does the printer's panel say?
class WTWpsLinkStateView : public WpsOutcomeView
{
    Q_OBJECT

public:
    WTWpsLinkStateView(DesktopPort &desktop, ProcessEnd processEnd, QWidget *parent = nullptr);

    void selectDone(WTHoverView *item) override;
    void addPrinterNow() override;
    void finish();
};
