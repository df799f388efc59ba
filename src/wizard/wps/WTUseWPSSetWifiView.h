#pragma once

#include "GuidanceView.h"

/// How to use the router's button and the printer's Wi-Fi button.
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
