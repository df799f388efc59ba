#include "WTWpsLinkStateView.h"

#include "Localized.h"
#include "Log.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

WTWpsLinkStateView::WTWpsLinkStateView(DesktopPort &desktop, ProcessEnd processEnd, QWidget *parent)
    : WpsOutcomeView(new WTHoverView(u"panel_connected"_s, localized(u"连接成功"_s),
                                     localized(u"显示屏显示“连接成功”或IP地址。"_s)),
                     new WTHoverView(u"panel_failed"_s, localized(u"连接失败"_s),
                                     localized(u"显示屏显示“连接失败”或“超时”。请返回，再试一次。"_s)),
                     {localized(u"打印机的显示屏显示什么？"_s), localized(u"请看打印机的显示屏，选择您看到的结果。"_s),
                      u"finishBtn"_s},
                     desktop, std::move(processEnd), parent)
{
    m_success->setObjectName(u"wpsSuccessView"_s);
    m_failure->setObjectName(u"wpsFailedView"_s);
    connect(finishButton(), &QAbstractButton::clicked, this, &WTWpsLinkStateView::finish);
}

void WTWpsLinkStateView::selectDone(WTHoverView *item)
{
    WpsOutcomeView::selectDone(item);
    logInfo("%@", formatText("Selected Connect %@", succeeded() ? "Success" : "Failure"));
}

void WTWpsLinkStateView::addPrinterNow()
{
    WpsOutcomeView::addPrinterNow();
    logInfo("Add Printer ? %@", isSelectFlag() ? "YES" : "NO");
}

void WTWpsLinkStateView::finish()
{
    if (isSelectFlag())
        logInfo("Open System Add Printer Tab");
    openAddPrinterPanel([this] {
        logErrorSynchronously("Done");
        endWhenSucceeded();
    });
}
