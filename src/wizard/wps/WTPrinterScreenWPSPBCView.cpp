#include "WTPrinterScreenWPSPBCView.h"

#include "Localized.h"
#include "WTButton.h"
#include "WTDefaultStyleBtn.h"

using namespace Qt::Literals::StringLiterals;

WTPrinterScreenWPSPBCView::WTPrinterScreenWPSPBCView(QWidget *parent)
    : GuidanceView(
          {localized(u"在打印机菜单中使用按钮方式"_s),
           localized(u"请在两分钟内完成前两步。"_s),
           {
               {u"printer_panel"_s, localized(u"在打印机的显示屏上选择：菜单 › 网络 › WPS › PBC，然后按OK确认。"_s)},
               {u"pbc"_s, localized(u"按一下路由器上的WPS按钮。"_s)},
               {u"panel_connected"_s, localized(u"等待最多两分钟。显示屏显示结果后，点击“下一步”。"_s)},
           },
           u"nextBtn"_s},
          parent)
{
    connect(nextButton(), &QAbstractButton::clicked, this, &WTPrinterScreenWPSPBCView::next);
    connect(previousButton(), &QAbstractButton::clicked, this, &WTPrinterScreenWPSPBCView::backAction);
}

void WTPrinterScreenWPSPBCView::next()
{
    pushView(m_printerSetStateResultView);
}

void WTPrinterScreenWPSPBCView::backAction()
{
    backPreviousView();
}
