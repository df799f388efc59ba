#include "WTUnconnectView.h"

#include "ButtonSchemes.h"
#include "Localized.h"
#include "ResultPanel.h"
#include "ScreenFrame.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

WTUnconnectView::WTUnconnectView(QWidget *parent)
    : WTView(parent)
    , m_previous(new WTButton)
{
    m_previous->setObjectName(u"previous"_s);
    m_previous->setTitle(localized(u"上一步"_s));
    connect(m_previous, &QAbstractButton::clicked, this, &WTUnconnectView::back);

    auto *panel = new ResultPanel(u"note"_s);
    panel->setMessage(localized(u"没有找到支持无线网络的打印机。"_s));
    panel->setAdvice(localized(u"请打开打印机电源，用USB数据线把它直接连到这台电脑（不要经过集线器），等待几秒。"
                               u"然后返回，再试一次。"_s));
    auto *frame = new ScreenFrame(this, WizardStep::Connect);
    frame->setHeading(localized(u"没有连接打印机"_s));
    frame->content()->addWidget(panel);
    frame->content()->addStretch(1);
    frame->setBackButton(m_previous);
    frame->setFirstFocus(m_previous);
}

void WTUnconnectView::awakeFromNib()
{
    WTView::awakeFromNib();
    ButtonSchemes::applyBack(*m_previous);
}

void WTUnconnectView::back()
{
    backPreviousView();
}
