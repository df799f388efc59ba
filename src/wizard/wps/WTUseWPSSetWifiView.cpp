#include "WTUseWPSSetWifiView.h"

#include "Localized.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

using namespace Qt::Literals::StringLiterals;

WTUseWPSSetWifiView::WTUseWPSSetWifiView(QWidget *parent)
    : GuidanceView({localized(u"用按钮连接"_s),
                    localized(u"请在两分钟内完成前两步。"_s),
                    {
                        {u"wifi_button"_s, localized(u"按住打印机上的Wi-Fi按钮约3秒，直到指示灯开始闪烁。"_s)},
                        {u"pbc"_s, localized(u"按一下路由器上的WPS按钮。"_s)},
                        {u"light_success"_s, localized(u"等待最多两分钟。指示灯不再闪烁时，点击“下一步”。"_s)},
                    },
                    u"nextButton"_s},
                   parent)
{
    connect(nextButton(), &QAbstractButton::clicked, this, &WTUseWPSSetWifiView::next);
    connect(previousButton(), &QAbstractButton::clicked, this, &WTUseWPSSetWifiView::backAction);
}

void WTUseWPSSetWifiView::next()
{
    pushView(m_setWifiWpsResultView);
}

void WTUseWPSSetWifiView::backAction()
{
    backPreviousView();
}
