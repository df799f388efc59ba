#pragma once

#include "WTView.h"

class WTButton;

/// No printer is on the USB bus; the way back looks for one again.
class WTUnconnectView : public WTView
{
    Q_OBJECT

public:
    explicit WTUnconnectView(QWidget *parent = nullptr);

    void awakeFromNib() override;

    void back();

private:
    WTButton *m_previous;
};
