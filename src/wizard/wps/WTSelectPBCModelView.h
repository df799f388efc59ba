#pragma once

#include "MethodChoiceView.h"

/// Choice for WPS from the printer's menu: by push button or by PIN.
class WTSelectPBCModelView : public MethodChoiceView
{
    Q_OBJECT

public:
    explicit WTSelectPBCModelView(QWidget *parent = nullptr);

    void setWpsPBCConfigView(WTView *view) { m_wpsPBCConfigView = view; }
    void setNextView(WTView *view) { m_nextView = view; }

    void selectDone(WTHoverView *item) override;

    void nextView();
    void back();

private:
    WTSelectPBCModelView(WTHoverView *pushButton, WTHoverView *pin, QWidget *parent);

    WTHoverView *m_selectWPS;
    WTHoverView *m_selectPIN;
    WTView *m_wpsPBCConfigView = nullptr;
    WTView *m_nextView = nullptr;
};
