#include "WTConfigFailedView.h"

#include "ButtonSchemes.h"
#include "Localized.h"
#include "ResultPanel.h"
#include "ScreenFrame.h"
#include "WTButton.h"
#include "WTManager.h"
#include "WTWindow.h"

using namespace Qt::Literals::StringLiterals;

WTConfigFailedView::WTConfigFailedView(QWidget *parent)
    : WTView(parent)
    , m_previous(new WTButton)
{
    m_previous->setObjectName(u"previous"_s);
    m_previous->setTitle(localized(u"上一步"_s));
    connect(m_previous, &QAbstractButton::clicked, this, &WTConfigFailedView::backAction);

    auto *panel = new ResultPanel(u"failure"_s);
    panel->setMessage(localized(u"打印机没有接受这次配置。"_s));
    panel->setAdvice(localized(u"请检查网络名称和密码（注意大小写），并确认打印机已开机、数据线已插好、"
                               u"离路由器不太远。然后返回，再试一次。"_s));
    auto *frame = new ScreenFrame(this, WizardStep::SetUp);
    frame->setHeading(localized(u"配置没有成功"_s));
    frame->content()->addWidget(panel);
    frame->content()->addStretch(1);
    frame->setBackButton(m_previous);
    frame->setFirstFocus(m_previous);
}

void WTConfigFailedView::awakeFromNib()
{
    WTView::awakeFromNib();
    ButtonSchemes::applyBack(*m_previous);
}

void WTConfigFailedView::backAction()
{
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    // Past the run. The entry screen keeps its own way back, so nothing leads into the run again.
    WTView *entry = preView()->preView();
    if (WTWindow *window = ostraWindow())
        window->setContentView(entry);
}
