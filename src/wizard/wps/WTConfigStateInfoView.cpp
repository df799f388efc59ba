#include "WTConfigStateInfoView.h"

#include "Localized.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

WTConfigStateInfoView::WTConfigStateInfoView(DesktopPort &desktop, ProcessEnd processEnd, QWidget *parent)
    : WpsOutcomeView(
          new WTHoverView(u"light_success"_s, localized(u"指示灯常亮"_s), localized(u"打印机已经连上无线网络。"_s)),
          new WTHoverView(u"light_fail"_s, localized(u"指示灯闪烁或熄灭"_s),
                          localized(u"没有连上。请返回，再试一次。"_s)),
          {localized(u"打印机的Wi-Fi指示灯怎么样？"_s), localized(u"请看打印机的Wi-Fi指示灯，选择您看到的样子。"_s),
           u"stateFinishBtn"_s},
          desktop, std::move(processEnd), parent)
{
    m_success->setObjectName(u"lightSuccessView"_s);
    m_failure->setObjectName(u"lightFailView"_s);
    connect(finishButton(), &QAbstractButton::clicked, this, &WTConfigStateInfoView::finishAction);
}

void WTConfigStateInfoView::finishAction()
{
    openAddPrinterPanel([this] { endWhenSucceeded(); });
}
