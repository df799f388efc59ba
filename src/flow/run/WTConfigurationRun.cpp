#include "WTConfigurationRun.h"

#include "Log.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "RunAnswers.h"
#include "WTManager.h"

namespace
{

using namespace std::chrono_literals;

constexpr std::chrono::seconds pollRetryDelay = 2s;
/// Longer than any command may take, the configuration's three minutes and its pause included.
constexpr std::chrono::seconds stepLimit = 240s;
constexpr qint64 configurationRetries = 2;
constexpr int fullProgress = 100;

/// What the catalogue says of a model's Wi-Fi: supported, or to be asked of the printer.
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

void WTConfigurationRun::start()
{
    ++m_runNumber;
    m_pollRetry.reset();
    m_retryTime = 0;
    m_cause.reset();
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
            uri(), locationID(), then([this](const ResultAnswer &answer) { classifyCapability(answer); }));
    }
}

void WTConfigurationRun::classifyCapability(const ResultAnswer &answer)
{
    const CapabilityDecision decision = capabilityDecision(answer.status, static_cast<CapabilityResult>(answer.result));
    m_cause = answer.cause;
    if (answer.status == WTPrinterStatus::Success && decision.action != CapabilityDecision::Action::Configure)
        m_cause = PrinterExchange::refusal(PrinterCommand::wifiCapability, answer.result);
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
        showErrorView(decision.reason);
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
    auto classify = then([this](const ResultAnswer &answer) { classifyConfiguration(answer); });
    WTManager::wifiConfigForPrinter(uri(), locationID(), m_wifi->SSID.value_or(QString()),
                                    m_wifi->password.value_or(QString()), [classify](const ResultAnswer &answer) {
                                        logInfo("FF80->errorCode:%ld, respCode:%hu", static_cast<int>(answer.status),
                                                answer.result);
                                        classify(answer);
                                    });
}

void WTConfigurationRun::classifyConfiguration(const ResultAnswer &answer)
{
    const ConfigurationDecision decision =
        configurationDecision(answer.status, static_cast<ConfigurationResult>(answer.result));
    m_cause = answer.cause;
    if (answer.status == WTPrinterStatus::Success && decision.action != ConfigurationDecision::Action::PollAddress)
        m_cause = PrinterExchange::refusal(PrinterCommand::wifiConfiguration, answer.result);
    switch (decision.action) {
    case ConfigurationDecision::Action::PollAddress:
        getNetConfigWithTime(0);
        break;
    case ConfigurationDecision::Action::CloseTimer:
        ff_closeTimer();
        break;
    case ConfigurationDecision::Action::End:
        closeTimer(decision.endCode);
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
        closeTimer(RunEndCode::ConfigurationFailed);
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
        closeTimer(RunEndCode::NoAddress);
        return;
    }
    beginStep(RunStep::WaitingForAddress, static_cast<int>(time));
    WTManager::getIPAddressFromPrinter(
        uri(), locationID(), then([this, time](const AddressAnswer &answer) { classifyAddress(time, answer); }));
}

void WTConfigurationRun::classifyAddress(qint64 time, const AddressAnswer &answer)
{
    const AddressDecision decision = addressDecision(answer.status);
    m_cause = answer.cause;
    switch (decision.action) {
    case AddressDecision::Action::Succeed:
        logInfo(decision.logFormat, answer.text);
        ff_gotoNextWith(answer.text);
        break;
    case AddressDecision::Action::Retry:
        logError(decision.logFormat, answer.text);
        ff_getNetConfigWithTime(time, decision.tag);
        break;
    case AddressDecision::Action::Nothing:
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
    end({.screen = RunOutcome::Screen::Complete});
}

void WTConfigurationRun::ff_closeTimer()
{
    logInfo("🏷");
    WTManager::shared().setCloseEnable(WTManager::CloseAsks);
    closeTimer(RunEndCode::ConfigurationFailed);
}

void WTConfigurationRun::closeTimer(RunEndCode endCode)
{
    logInfo("🏷 result：%d", static_cast<int>(endCode));
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

void WTConfigurationRun::showErrorView(CapabilityReason reason)
{
    logInfo("🏷 error:%lu", static_cast<quint64>(reason));
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

void WTConfigurationRun::end(RunOutcome outcome)
{
    if (m_cause && outcome.screen != RunOutcome::Screen::Complete) {
        logWarning("The run ended while %@: %@ %d, %@", logName(m_step), m_cause->domain, m_cause->code,
                   m_cause->message);
        outcome.cause = {.step = m_step, .error = *m_cause};
    }
    m_step = RunStep::Ended;
    m_stepWatch.reset();
    Q_EMIT stepChanged(m_step, 0);
    Q_EMIT ended(outcome);
}
