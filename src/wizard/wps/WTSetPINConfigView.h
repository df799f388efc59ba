#pragma once

#include "GuidanceView.h"

/// Instructions for the PIN way, started from the printer's menu.
class WTSetPINConfigView : public GuidanceView
{
    Q_OBJECT

public:
    explicit WTSetPINConfigView(QWidget *parent = nullptr);

    void setWpsStateView(WTView *view) { m_wpsStateView = view; }

    void nextView();
    void previousView();

private:
    WTView *m_wpsStateView = nullptr;
};
