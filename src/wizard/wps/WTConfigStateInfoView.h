#pragma once

#include "WpsOutcomeView.h"

/// Asks for the outcome of WPS by buttons, which the printer shows by its indicator light.
class WTConfigStateInfoView : public WpsOutcomeView
{
    Q_OBJECT

public:
    WTConfigStateInfoView(DesktopPort &desktop, ProcessEnd processEnd, QWidget *parent = nullptr);

    void finishAction();
};
