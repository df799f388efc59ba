#pragma once

#include "MethodChoiceView.h"

/// Choice for Wi-Fi Protected Setup (WPS): by the router's and the printer's buttons or by the printer's menu.
class WTSetWPSMethodView : public MethodChoiceView
{
    Q_OBJECT

public:
    explicit WTSetWPSMethodView(QWidget *parent = nullptr);

    void setSetMethodWPSView(WTView *view) { m_setMethodWPSView = view; }
    void setSelectPbcMethodView(WTView *view) { m_selectPbcMethodView = view; }

    void selectDone(WTHoverView *item) override;

    void nextAction();
    void backAction();

private:
    WTSetWPSMethodView(WTHoverView *button, WTHoverView *menu, QWidget *parent);

    WTHoverView *m_selectWPSMethod;
    WTHoverView *m_selectPrinterMethod;
    WTView *m_setMethodWPSView = nullptr;
    WTView *m_selectPbcMethodView = nullptr;
};
