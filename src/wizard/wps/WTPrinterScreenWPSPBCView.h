#pragma once

#include "GuidanceView.h"

/// How to use the push button from the printer's menu.
class WTPrinterScreenWPSPBCView : public GuidanceView
{
    Q_OBJECT

public:
    explicit WTPrinterScreenWPSPBCView(QWidget *parent = nullptr);

    void setPrinterSetStateResultView(WTView *view) { m_printerSetStateResultView = view; }

    void next();
    void backAction();

private:
    WTView *m_printerSetStateResultView = nullptr;
};
