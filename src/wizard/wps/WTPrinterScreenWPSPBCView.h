#pragma once

#include "GuidanceView.h"

/// Instructions for the push-button way, started from the printer's menu.
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
