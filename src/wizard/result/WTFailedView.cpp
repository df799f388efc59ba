#include "WTFailedView.h"

#include "ButtonSchemes.h"
#include "FailureText.h"
#include "Localized.h"
#include "ResultPanel.h"
#include "ScreenFrame.h"
#include "WTApp.h"
#include "WTButton.h"

using namespace Qt::Literals::StringLiterals;

WTFailedView::WTFailedView(const QString &logFolder, QWidget *parent)
    : WTView(parent)
    , m_errorMessage(new ResultPanel(u"failure"_s, logFolder))
    , m_complateBtn(new WTButton)
{
    m_errorMessage->setObjectName(u"errorMessage"_s);
    m_complateBtn->setObjectName(u"complateBtn"_s);
    m_complateBtn->setTitle(localized(u"退出"_s));
    connect(m_complateBtn, &QAbstractButton::clicked, this, &WTFailedView::backAction);

    auto *frame = new ScreenFrame(this, WizardStep::SetUp);
    frame->setHeading(localized(u"打印机没有连上无线网络"_s));
    frame->content()->addWidget(m_errorMessage);
    frame->setMainButton(m_complateBtn);
    frame->setFirstFocus(m_complateBtn);
}

void WTFailedView::awakeFromNib()
{
    WTView::awakeFromNib();
    ButtonSchemes::applyRed(*m_complateBtn);
}

void WTFailedView::viewDidApear()
{
    WTView::viewDidApear();
    ff_judgeError();
}

void WTFailedView::ff_judgeError()
{
    const FailureText failure = failureText(m_showInterfaceError, m_showWiFiCapabilityError,
                                            static_cast<CapabilityReason>(m_wifiCapabilityError));
    m_errorMessage->setMessage(localized(failure.text));
    m_errorMessage->setCause(m_cause.cause);
    m_errorMessage->setAdvice(m_cause.advice.isEmpty() ? localized(failure.advice) : m_cause.advice);
    m_errorMessage->setDetails(m_cause.details);
}

void WTFailedView::backAction()
{
    WTApp::wt_exitApp();
}
