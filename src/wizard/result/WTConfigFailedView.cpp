#include "WTConfigFailedView.h"

#include "Localized.h"
#include "ResultPanel.h"
#include "ScreenHost.h"
#include "WTButton.h"
#include "WTManager.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

QString generalAdvice()
{
    return localized(u"请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、"
                     u"离路由器不太远。然后返回，再试一次。"_s);
}

} // namespace

WTConfigFailedView::WTConfigFailedView(const QString &logFolder, QWidget *parent)
    : NoteView(WizardStep::SetUp,
               {.pictureName = u"failure"_s,
                .heading = localized(u"配置没有成功"_s),
                .message = localized(u"打印机没有接受这次配置。"_s),
                .advice = generalAdvice()},
               logFolder, parent)
{
    connect(previousButton(), &QAbstractButton::clicked, this, &WTConfigFailedView::backAction);
}

void WTConfigFailedView::setCause(const CauseText &cause)
{
    panel()->setCause(cause.cause);
    panel()->setAdvice(cause.advice.isEmpty() ? generalAdvice() : cause.advice);
    panel()->setDetails(cause.details);
}

void WTConfigFailedView::backAction()
{
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    // Not by `backPreviousView`, which would show the run again and so start a new one. The screen before the run keeps
    // its own way back.
    WTView *entry = preView()->preView();
    if (ScreenHost *window = ostraWindow())
        window->setContentView(entry);
}
