#include "WTInstallingView.h"

#include "CauseText.h"
#include "DesktopPort.h"
#include "LiveLabel.h"
#include "Localized.h"
#include "Palette.h"
#include "PictureView.h"
#include "ScreenFrame.h"
#include "ScreenPorts.h"
#include "TextFormat.h"
#include "TextStyle.h"
#include "WTCompleteView.h"
#include "WTConfigFailedView.h"
#include "WTConfigurationRun.h"
#include "WTFailedView.h"
#include "WTProgressView.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr QSize pictureSize{248, 112};

} // namespace

WTInstallingView::WTInstallingView(const ScreenPorts &ports, QWidget *parent)
    : WTView(parent)
    , m_desktop(ports.desktop)
    , m_run(new WTConfigurationRun(ports.time, ports.host.canPollAddress, this))
    , m_progressView(new WTProgressView)
    , m_progressLabel(new LiveLabel({}, TextStyle::Size::Body, Palette::label))
    , m_network(TextStyle::makeLabel({}, TextStyle::Size::Large, Palette::heading))
{
    layOut();
    connect(m_run, &WTConfigurationRun::progressChanged, m_progressView, &WTProgressView::setProgress);
    connect(m_run, &WTConfigurationRun::stepChanged, this, &WTInstallingView::showStep);
    connect(m_run, &WTConfigurationRun::stepUnanswered, this, &WTInstallingView::showUnanswered);
    connect(m_run, &WTConfigurationRun::ended, this, &WTInstallingView::showOutcome);
}

void WTInstallingView::layOut()
{
    auto *frame = new ScreenFrame(this, WizardStep::SetUp);
    frame->setHeading(localized(u"正在配置打印机"_s));
    frame->setInstruction(localized(u"这可能需要几分钟。请保持打印机开机，不要拔下 USB 数据线。"_s));

    m_network->setObjectName(u"networkLabel"_s);
    m_progressView->setObjectName(u"progressView"_s);
    m_progressView->setAccessibleName(localized(u"配置进度"_s));
    m_progressLabel->setObjectName(u"progressLabel"_s);
    m_network->setAlignment(Qt::AlignHCenter);
    m_progressLabel->setAlignment(Qt::AlignHCenter);

    QVBoxLayout *content = frame->content();
    content->addStretch(2);
    content->addWidget(new PictureView(u"setting_up"_s, pictureSize), 0, Qt::AlignHCenter);
    content->addSpacing(32);
    content->addWidget(m_network);
    content->addSpacing(16);
    content->addWidget(m_progressView);
    content->addSpacing(16);
    content->addWidget(m_progressLabel);
    content->addStretch(3);
}

void WTInstallingView::setPrinter(const WTPrinterPtr &printer)
{
    m_run->setPrinter(printer);
    showNetwork();
}

void WTInstallingView::setWifi(const WTWiFiPtr &wifi)
{
    m_run->setWifi(wifi);
    showNetwork();
}

void WTInstallingView::setProgress(int progress)
{
    m_run->setProgress(progress);
}

WTPrinterPtr WTInstallingView::printer() const
{
    return m_run->printer();
}

WTWiFiPtr WTInstallingView::wifi() const
{
    return m_run->wifi();
}

qint64 WTInstallingView::retryTime() const
{
    return m_run->retryTime();
}

bool WTInstallingView::isSendSuccessFlag() const
{
    return m_run->isSendSuccessFlag();
}

void WTInstallingView::viewWillMoveToSuperview()
{
    WTView::viewWillMoveToSuperview();
    m_run->setProgress(0);
}

void WTInstallingView::viewDidApear()
{
    WTView::viewDidApear();
    m_run->start();
}

void WTInstallingView::ff_config()
{
    m_run->ff_config();
}

void WTInstallingView::confingWiFiStart()
{
    m_run->confingWiFiStart();
}

void WTInstallingView::wt_sendConfigWIFIACL()
{
    m_run->wt_sendConfigWIFIACL();
}

void WTInstallingView::getNetConfigWithTime(qint64 time)
{
    m_run->getNetConfigWithTime(time);
}

void WTInstallingView::ff_getNetConfigWithTime(qint64 time, quint64 tag)
{
    m_run->ff_getNetConfigWithTime(time, tag);
}

void WTInstallingView::ff_gotoNextWith(const std::optional<QString> &ipInfo)
{
    m_run->ff_gotoNextWith(ipInfo);
}

void WTInstallingView::gotoNext()
{
    m_run->gotoNext();
}

void WTInstallingView::closeTimer(int endCode)
{
    m_run->closeTimer(static_cast<RunEndCode>(endCode));
}

void WTInstallingView::ff_closeTimer()
{
    m_run->ff_closeTimer();
}

void WTInstallingView::showErrorView(quint64 reason)
{
    m_run->showErrorView(static_cast<CapabilityReason>(reason));
}

void WTInstallingView::showNetwork()
{
    const WTPrinterPtr printer = m_run->printer();
    const WTWiFiPtr wifi = m_run->wifi();
    if (printer && wifi)
        m_network->setText(printer->printerType() + u"  →  "_s + wifi->shownSSID().value_or(QString()));
}

void WTInstallingView::showStep(RunStep step, int attempt)
{
    m_progressLabel->setText(stepLine(step, attempt));
    m_progressView->setAccessibleDescription(m_progressLabel->text());
}

void WTInstallingView::showUnanswered()
{
    m_progressLabel->setText(localized(u"打印机没有应答，您现在可以关闭此窗口。"_s));
    m_progressView->setAccessibleDescription(m_progressLabel->text());
}

void WTInstallingView::showOutcome(const RunOutcome &outcome)
{
    if (outcome.showInterfaceError)
        m_failedView->setShowInterfaceError(*outcome.showInterfaceError);
    if (outcome.showWiFiCapabilityError)
        m_failedView->setShowWiFiCapabilityError(*outcome.showWiFiCapabilityError);
    if (outcome.wifiCapabilityError)
        m_failedView->setWifiCapabilityError(static_cast<quint64>(*outcome.wifiCapabilityError));
    const CauseText cause = outcome.cause ? causeText(*outcome.cause, m_desktop.deviceAccess()) : CauseText{};
    m_failedView->setCause(cause);
    m_configFailedView->setCause(cause);
    switch (outcome.screen) {
    case RunOutcome::Screen::Complete:
        m_completeView->setAddress(m_run->printer()->ip);
        pushView(m_completeView);
        break;
    case RunOutcome::Screen::Failed:
        pushView(m_failedView);
        break;
    case RunOutcome::Screen::ConfigFailed:
        pushView(m_configFailedView);
        break;
    }
}
