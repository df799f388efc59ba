#include "WTSetPINConfigView.h"

#include "Localized.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

using namespace Qt::Literals::StringLiterals;

WTSetPINConfigView::WTSetPINConfigView(QWidget *parent)
    : GuidanceView(
          {localized(u"在打印机菜单中使用PIN码"_s),
           localized(u"PIN码几分钟后失效，请先准备好路由器的设置页面。"_s),
           {
               {u"pin"_s, localized(u"在打印机的显示屏上选择：菜单 › 网络 › WPS › PIN，显示屏会显示一个8位数字。"_s)},
               {u"router_page"_s, localized(u"在路由器设置页面的WPS栏输入这个PIN码，然后开始连接。"_s)},
               {u"panel_connected"_s, localized(u"等待最多两分钟。显示屏显示结果后，点击“下一步”。"_s)},
           },
           u"nextBtn"_s},
          parent)
{
    connect(nextButton(), &QAbstractButton::clicked, this, &WTSetPINConfigView::nextView);
    connect(previousButton(), &QAbstractButton::clicked, this, &WTSetPINConfigView::previousView);
}

void WTSetPINConfigView::nextView()
{
    pushView(m_wpsStateView);
}

void WTSetPINConfigView::previousView()
{
    backPreviousView();
}
