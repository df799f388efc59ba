#pragma once

#include "WTView.h"

class WTButton;

/// The printer did not take the configuration. The way back leads past the run to the screen before it.
class WTConfigFailedView : public WTView
{
    Q_OBJECT

public:
    explicit WTConfigFailedView(QWidget *parent = nullptr);

    void awakeFromNib() override;

    void backAction();

private:
    WTButton *m_previous;
};
