#pragma once

#include "WpsOutcomeView.h"

/// Asks for the outcome of WPS by the printer's menu, which the printer shows on its panel.
class WTWpsLinkStateView : public WpsOutcomeView
{
    Q_OBJECT

public:
    WTWpsLinkStateView(DesktopPort &desktop, ProcessEnd processEnd, QWidget *parent = nullptr);

    void selectDone(WTHoverView *item) override;
    void addPrinterNow() override;
    void finish();
};
