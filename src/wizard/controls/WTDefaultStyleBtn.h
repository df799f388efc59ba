#pragma once

#include "WTBaseBtn.h"

/// The main action of a screen: white on red.
class WTDefaultStyleBtn : public WTBaseBtn
{
    Q_OBJECT

public:
    explicit WTDefaultStyleBtn(QWidget *parent = nullptr);

    /// Sets the colours; called by the constructor.
    void wt_customConfig();
};
