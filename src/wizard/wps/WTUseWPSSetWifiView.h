#pragma once

#include "GuidanceView.h"

/// Instructions for the WPS button of the router and the Wi-Fi button of the printer.
class WTUseWPSSetWifiView : public GuidanceView
{
    Q_OBJECT

public:
    explicit WTUseWPSSetWifiView(QWidget *parent = nullptr);

    void setSetWifiWpsResultView(WTView *view) { m_setWifiWpsResultView = view; }

    void next();
    void backAction();

private:
    WTView *m_setWifiWpsResultView = nullptr;
};
