#pragma once

#include "WpsOutcomeView.h"

/// Outcome of the router-button way: what does the printer's indicator light do?
class WTConfigStateInfoView : public WpsOutcomeView
{
    Q_OBJECT

public:
    WTConfigStateInfoView(DesktopPort &desktop, ProcessEnd processEnd, QWidget *parent = nullptr);

    void finishAction();
};
