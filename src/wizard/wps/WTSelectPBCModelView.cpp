#include "WTSelectPBCModelView.h"

#include "Localized.h"
#include "Log.h"
#include "TilePair.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

using namespace Qt::Literals::StringLiterals;

WTSelectPBCModelView::WTSelectPBCModelView(QWidget *parent)
    : WTSelectPBCModelView(
          new WTHoverView(u"pbc"_s, localized(u"按钮方式（PBC）"_s), localized(u"按一下路由器上的WPS按钮即可。"_s)),
          new WTHoverView(u"pin"_s, localized(u"PIN码方式"_s),
                          localized(u"路由器没有WPS按钮时，在它的设置页面输入PIN码。"_s)),
          parent)
{
}

WTSelectPBCModelView::WTSelectPBCModelView(WTHoverView *pushButton, WTHoverView *pin, QWidget *parent)
    : MethodChoiceView(pushButton, pin, parent)
    , m_selectWPS(pushButton)
    , m_selectPIN(pin)
{
    m_selectWPS->setObjectName(u"selectWPS"_s);
    m_selectPIN->setObjectName(u"selectPIN"_s);
    setTexts(localized(u"选择WPS的方式"_s),
             localized(u"两种方式都在打印机的菜单里。路由器上有WPS按钮时，按钮方式最简单。"_s));
    connect(nextButton(), &QAbstractButton::clicked, this, &WTSelectPBCModelView::nextView);
    connect(previousButton(), &QAbstractButton::clicked, this, &WTSelectPBCModelView::back);
}

void WTSelectPBCModelView::selectDone(WTHoverView *item)
{
    tiles()->choose(item, m_selectPIN);
    // The names are exchanged: "PBC" is logged for the PIN tile, and the other way round. Those who read the logs know
    // it that way, so it stays.
    logInfo("Selected %@", item == m_selectPIN ? "PBC" : "PIN");
}

void WTSelectPBCModelView::nextView()
{
    logInfo("next step");
    pushView(m_selectPIN->isSelect() ? m_nextView : m_wpsPBCConfigView);
}

void WTSelectPBCModelView::back()
{
    backPreviousView();
}
