#include "WTSetWPSMethodView.h"

#include "Localized.h"
#include "Log.h"
#include "TilePair.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

using namespace Qt::Literals::StringLiterals;

WTSetWPSMethodView::WTSetWPSMethodView(QWidget *parent)
    : WTSetWPSMethodView(new WTHoverView(u"wifi_button"_s, localized(u"打印机的Wi-Fi按钮"_s),
                                         localized(u"打印机没有显示屏时使用，与路由器上的WPS按钮配合。"_s)),
                         new WTHoverView(u"printer_panel"_s, localized(u"打印机的菜单"_s),
                                         localized(u"打印机有显示屏和菜单时使用。"_s)),
                         parent)
{
}

WTSetWPSMethodView::WTSetWPSMethodView(WTHoverView *button, WTHoverView *menu, QWidget *parent)
    : MethodChoiceView(button, menu, parent)
    , m_selectWPSMethod(button)
    , m_selectPrinterMethod(menu)
{
    m_selectWPSMethod->setObjectName(u"selectWPSMethod"_s);
    m_selectPrinterMethod->setObjectName(u"selectPrinterMethod"_s);
    setTexts(localized(u"从哪里启动WPS？"_s), localized(u"看一看您的打印机：它有显示屏和菜单，还是只有Wi-Fi按钮？"_s));
    connect(nextButton(), &QAbstractButton::clicked, this, &WTSetWPSMethodView::nextAction);
    connect(previousButton(), &QAbstractButton::clicked, this, &WTSetWPSMethodView::backAction);
}

void WTSetWPSMethodView::selectDone(WTHoverView *item)
{
    tiles()->choose(item, m_selectWPSMethod);
    logInfo("Selected %@", item == m_selectWPSMethod ? "WiFi Btn" : "Printer Menu");
}

void WTSetWPSMethodView::nextAction()
{
    logInfo("next step");
    if (m_selectWPSMethod->isSelect())
        pushView(m_setMethodWPSView);
    else if (m_selectPrinterMethod->isSelect())
        pushView(m_selectPbcMethodView);
}

void WTSetWPSMethodView::backAction()
{
    backPreviousView();
}
