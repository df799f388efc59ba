#include "WTConfigurationRun.h"

#include "AddressAnswer.h"
#include "CapabilityAnswer.h"
#include "ConfigurationAnswer.h"
#include "Log.h"
#include "WTManager.h"

namespace
{

using namespace std::chrono_literals;

constexpr std::chrono::seconds pollRetryDelay = 2s;
/// Longer than any command may take, the configuration's three minutes and its pause included.
constexpr std::chrono::seconds stepLimit = 240s;
constexpr qint64 configurationRetries = 2;
constexpr int fullProgress = 100;

/// The catalogue's word on Wi-Fi support that needs no question, and the one that does.
constexpr qint64 wifiSupported = 1;
constexpr qint64 wifiSupportUnknown = -1;

} // namespace

WTConfigurationRun::WTConfigurationRun(TimePort &time, bool canPollAddress, QObject *parent)
    : QObject(parent)
    , m_time(time)
    , m_canPollAddress(canPollAddress)
{
}

WTConfigurationRun::~WTConfigurationRun() = default;

void WTConfigurationRun::setProgress(int progress)
{
    m_progress = progress;
    Q_EMIT progressChanged(progress);
}

void WTConfigurationRun::viewDidApear()
{
    ++m_runNumber;
    m_pollRetry.reset();
    m_retryTime = 0;
    beginStep(RunStep::Waking);
    WTManager::wt_wakeUpPrinter(uri(), locationID(), then([this](bool success, const std::optional<QString> &message) {
                                    logInfo("wakeup result:%@ msg:%@", success ? "✅" : "❌", message);
                                    ff_config();
                                }));
}

void WTConfigurationRun::ff_config()
{
    WTManager::shared().setCloseEnable(WTManager::CloseIgnored);
    beginStep(RunStep::Checking);
    if (m_printer->wifiCode == wifiSupported) {
        logInfo("Support Wi-Fi Config");
        confingWiFiStart();
    } else if (m_printer->wifiCode == wifiSupportUnknown) {
        logInfo("检查是否可以配网！！！！！");
        WTManager::checkWiFiCapabilityFromPrinter(
            uri(), locationID(), then([this](int status, quint16 code) { classifyCapability(status, code); }));
    }
}

void WTConfigurationRun::classifyCapability(int status, quint16 code)
{
    const CapabilityDecision decision = capabilityDecision(status, code);
    switch (decision.action) {
    case CapabilityDecision::Action::Configure:
        confingWiFiStart();
        break;
    case CapabilityDecision::Action::CommunicationFailure:
        WTManager::shared().setCloseEnable(WTManager::CloseQuits);
        setProgress(0);
        end(communicationFailure());
        break;
    case CapabilityDecision::Action::ShowError:
        showErrorView(static_cast<quint64>(decision.reason));
        break;
    }
}

void WTConfigurationRun::confingWiFiStart()
{
    wt_sendConfigWIFIACL();
    if (m_timer)
        m_earlierTimers.push_back(std::move(m_timer));
    m_timer = std::make_unique<ProgressTimer>(m_time, m_progress, [this](int progress) { setProgress(progress); });
    m_timer->fire();
}

void WTConfigurationRun::wt_sendConfigWIFIACL()
{
    beginStep(RunStep::Sending);
    auto classify = then([this](int errorCode, quint16 respCode) { classifyConfiguration(errorCode, respCode); });
    WTManager::wifiConfigForPrinter(uri(), locationID(), m_wifi->SSID.value_or(QString()),
                                    m_wifi->password.value_or(QString()), [classify](int errorCode, quint16 respCode) {
                                        logInfo("FF80->errorCode:%ld, respCode:%hu", errorCode, respCode);
                                        classify(errorCode, respCode);
                                    });
}

void WTConfigurationRun::classifyConfiguration(int errorCode, quint16 respCode)
{
    const ConfigurationDecision decision = configurationDecision(errorCode, respCode);
    switch (decision.action) {
    case ConfigurationDecision::Action::PollAddress:
        getNetConfigWithTime(0);
        break;
    case ConfigurationDecision::Action::CloseTimer:
        ff_closeTimer();
        break;
    case ConfigurationDecision::Action::End:
        closeTimer(static_cast<int>(decision.endCode));
        break;
    case ConfigurationDecision::Action::Retry:
        retryConfiguration();
        break;
    case ConfigurationDecision::Action::Nothing:
        break;
    }
}

void WTConfigurationRun::retryConfiguration()
{
    logInfo("retry time:%ld", m_retryTime);
    if (m_retryTime >= configurationRetries) {
        logInfo("did retry!");
        closeTimer(static_cast<int>(RunEndCode::ConfigurationFailed));
        return;
    }
    ++m_retryTime;
    confingWiFiStart();
}

void WTConfigurationRun::getNetConfigWithTime(qint64 time)
{
    logInfo("🏷：%ld", time);
    if (!m_canPollAddress) {
        m_getTimer.reset();
        ff_gotoNextWith(std::nullopt);
        return;
    }
    if (time >= addressQueries) {
        logError("Too many times");
        closeTimer(static_cast<int>(RunEndCode::NoAddress));
        return;
    }
    beginStep(RunStep::WaitingForAddress, static_cast<int>(time));
    WTManager::getIPAddressFromPrinter(uri(), locationID(), then([this, time](int status, const QString &text) {
                                           classifyAddress(time, status, text);
                                       }));
}

void WTConfigurationRun::classifyAddress(qint64 time, int status, const QString &text)
{
    const std::optional<AddressDecision> decision = addressDecision(status);
    if (!decision)
        return;
    switch (decision->action) {
    case AddressDecision::Action::Succeed:
        logInfo(decision->logFormat, text);
        ff_gotoNextWith(text);
        break;
    case AddressDecision::Action::Retry:
        logError(decision->logFormat, text);
        ff_getNetConfigWithTime(time, decision->tag);
        break;
    }
}

void WTConfigurationRun::ff_getNetConfigWithTime(qint64 time, quint64 tag)
{
    m_pollRetry = onMainThreadAfter(m_time, pollRetryDelay, [this, time, tag] {
        logInfo("Retry time 👉🏻 %ld, Tag 👉🏻 %lu", time, tag);
        getNetConfigWithTime(time + 1);
    });
}

void WTConfigurationRun::ff_gotoNextWith(const std::optional<QString> &ipInfo)
{
    m_getTimer.reset();
    m_printer->ip = ipInfo.value_or(QString());
    logInfo("ipInfo ipString :%@", ipInfo);
    gotoNext();
}

void WTConfigurationRun::gotoNext()
{
    logInfo("🏷");
    WTManager::shared().setCloseEnable(WTManager::CloseQuits);
    setProgress(fullProgress);
    m_timer.reset();
    m_getTimer.reset();
    end({RunOutcome::Screen::Complete});
}

void WTConfigurationRun::ff_closeTimer()
{
    logInfo("🏷");
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    closeTimer(static_cast<int>(RunEndCode::ConfigurationFailed));
}

void WTConfigurationRun::closeTimer(int endCode)
{
    logInfo("🏷 result：%d", endCode);
    m_isSendSuccessFlag = false;
    setProgress(fullProgress);
    m_timer.reset();
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    const std::optional<RunEnd> runEnded = runEnd(endCode);
    if (!runEnded)
        return;
    if (runEnded->closeQuits)
        WTManager::shared().setCloseEnable(WTManager::CloseQuits);
    end(runEnded->outcome);
}

void WTConfigurationRun::showErrorView(quint64 reason)
{
    logInfo("🏷 error:%lu", reason);
    WTManager::shared().setCloseEnable(WTManager::CloseQuits);
    setProgress(0);
    end(capabilityFailure(reason));
}

void WTConfigurationRun::beginStep(RunStep step, int attempt)
{
    m_step = step;
    m_stepWatch = onMainThreadAfter(m_time, stepLimit, [this] { reportUnansweredStep(); });
    Q_EMIT stepChanged(step, attempt);
}

void WTConfigurationRun::reportUnansweredStep()
{
    logError("No step for %d seconds: %@", stepLimit.count(), logName(m_step));
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    Q_EMIT stepUnanswered();
}

void WTConfigurationRun::end(const RunOutcome &outcome)
{
    m_step = RunStep::Ended;
    m_stepWatch.reset();
    Q_EMIT stepChanged(m_step, 0);
    Q_EMIT ended(outcome);
}
