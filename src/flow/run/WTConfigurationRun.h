#pragma once

#include "MainThread.h"
#include "OnMainThreadAfter.h"
#include "PrinterAnswer.h"
#include "ProgressTimer.h"
#include "RunOutcome.h"
#include "RunStep.h"
#include "WTPrinter.h"
#include "WTWiFi.h"

#include <QObject>
#include <QPointer>
#include <memory>
#include <optional>
#include <vector>

/// One set-up of a printer, step by step: wake it, make sure that it can be configured, send network name and password,
/// ask for its address until it has one. It owns the order of the steps, the retries and the progress; what an answer
/// leads to stands in the tables beside it.
///
///     start ── wake-up ──► ff_config ──► confingWiFiStart ──► getNetConfigWithTime(0..6) ──► gotoNext
///                              └ capability ┘   └ retry ≤ 2 ┘        └ 2.0 s ┘
///
/// Everything runs on the main thread. An answer that belongs to an earlier start is dropped.
class WTConfigurationRun : public QObject
{
    Q_OBJECT

public:
    /// @param canPollAddress whether this host may ask the printer for its address; without, an accepted configuration
    ///        is the end.
    WTConfigurationRun(TimePort &time, bool canPollAddress, QObject *parent = nullptr);
    ~WTConfigurationRun() override;

    /// Both are set before the run begins.
    void setPrinter(const WTPrinterPtr &printer) { m_printer = printer; }
    void setWifi(const WTWiFiPtr &wifi) { m_wifi = wifi; }
    WTPrinterPtr printer() const { return m_printer; }
    WTWiFiPtr wifi() const { return m_wifi; }

    int progress() const { return m_progress; }
    void setProgress(int progress);

    /// Repeated configuration sends.
    qint64 retryTime() const { return m_retryTime; }
    bool isSendSuccessFlag() const { return m_isSendSuccessFlag; }
    RunStep step() const { return m_step; }

    /// Begins a new run, also while one is under way.
    void start();
    void ff_config();
    void confingWiFiStart();
    /// Sends the configuration.
    void wt_sendConfigWIFIACL();
    /// Asks for the address.
    /// @param time the attempt, from 0.
    void getNetConfigWithTime(qint64 time);
    /// Asks again in 2.0 seconds.
    void ff_getNetConfigWithTime(qint64 time, quint64 tag);
    /// Ends on the completion screen; the address is absent where this host cannot ask for it.
    void ff_gotoNextWith(const std::optional<QString> &ipInfo);
    void gotoNext();
    /// Ends on the screen that the table of end codes names.
    void closeTimer(RunEndCode endCode);
    void ff_closeTimer();
    void showErrorView(CapabilityReason reason);

    // What an answer leads to, once it has come to the main thread.
    void classifyCapability(const ResultAnswer &answer);
    void classifyConfiguration(const ResultAnswer &answer);
    /// @param time the attempt that is answered.
    void classifyAddress(qint64 time, const AddressAnswer &answer);

Q_SIGNALS:
    void progressChanged(int progress);
    /// @param attempt which address query is under way, from 0.
    void stepChanged(RunStep step, int attempt);
    /// The step has been under way for so long that no answer is to be expected; the run waits on.
    void stepUnanswered();
    void ended(const RunOutcome &outcome);

private:
    void retryConfiguration();

    void beginStep(RunStep step, int attempt = 0);
    void reportUnansweredStep();
    /// Logs the cause, if there is one, and hands it on with the outcome.
    void end(RunOutcome outcome);

    QString uri() const { return m_printer->usbObj->URI(); }
    quint32 locationID() const { return m_printer->usbObj->locationID; }

    /// `next` as a callback for any thread: it runs on the main thread, as long as this object lives and no new run has
    /// begun.
    template <typename Next>
    auto then(Next next)
    {
        return [run = QPointer(this), number = m_runNumber, next = std::move(next)](auto... arguments) {
            onMainThread([=] {
                if (run && run->m_runNumber == number)
                    next(arguments...);
            });
        };
    }

    TimePort &m_time;
    const bool m_canPollAddress;
    WTPrinterPtr m_printer;
    WTWiFiPtr m_wifi;

    quint64 m_runNumber = 0;
    RunStep m_step = RunStep::Idle;
    qint64 m_retryTime = 0;
    bool m_isSendSuccessFlag = false;
    std::optional<WTError> m_cause; ///< Of the latest answer, where it was no success.
    int m_progress = 0;

    std::unique_ptr<ProgressTimer> m_timer;
    std::unique_ptr<ProgressTimer> m_getTimer; ///< Nothing starts it.
    /// A repeated start does not stop the timer before it: each keeps counting on its own, also past the run's end.
    std::vector<std::unique_ptr<ProgressTimer>> m_earlierTimers;
    std::unique_ptr<TimePort::Timer> m_pollRetry;
    std::unique_ptr<TimePort::Timer> m_stepWatch;
};
