#pragma once

#include "RunOutcome.h"
#include "RunStep.h"
#include "WTPrinter.h"
#include "WTView.h"
#include "WTWiFi.h"

#include <optional>

class DesktopPort;
class LiveLabel;
class QLabel;
class WTCompleteView;
class WTConfigFailedView;
class WTConfigurationRun;
class WTFailedView;
class WTProgressView;
struct ScreenPorts;

/// Shows a configuration run: a bar and the step under way in words, and at the end of the run the screen that the run
/// names. Each time the screen appears, a new run begins; there is no way back during a run. The operations only call
/// those of `WTConfigurationRun`, which says what they do.
class WTInstallingView : public WTView
{
    Q_OBJECT

public:
    explicit WTInstallingView(const ScreenPorts &ports, QWidget *parent = nullptr);

    /// The three screens a run can end on. All are set before the first run.
    void setCompleteView(WTCompleteView *view) { m_completeView = view; }
    void setFailedView(WTFailedView *view) { m_failedView = view; }
    void setConfigFailedView(WTConfigFailedView *view) { m_configFailedView = view; }

    /// The screen that pushes this one first sets the printer, the network, and a progress of 0.
    void setPrinter(const WTPrinterPtr &printer);
    void setWifi(const WTWiFiPtr &wifi);
    void setProgress(int progress);
    WTPrinterPtr printer() const;
    WTWiFiPtr wifi() const;

    qint64 retryTime() const;
    bool isSendSuccessFlag() const;

    void viewWillMoveToSuperview() override;
    void viewDidApear() override;

    void ff_config();
    void confingWiFiStart();
    void wt_sendConfigWIFIACL();
    void getNetConfigWithTime(qint64 time);
    void ff_getNetConfigWithTime(qint64 time, quint64 tag);
    void ff_gotoNextWith(const std::optional<QString> &ipInfo);
    void gotoNext();
    void closeTimer(int endCode);
    void ff_closeTimer();
    void showErrorView(quint64 reason);

    bool isConnectOK = false; ///< Reserved.
    qint64 outTime = 0;       ///< Reserved.
    QString bleName;          ///< Reserved.

private:
    void layOut();
    void showNetwork();
    void showStep(RunStep step, int attempt);
    void showUnanswered();
    void showOutcome(const RunOutcome &outcome);

    DesktopPort &m_desktop;
    WTConfigurationRun *m_run;
    WTProgressView *m_progressView;
    LiveLabel *m_progressLabel;
    QLabel *m_network;
    WTCompleteView *m_completeView = nullptr;
    WTFailedView *m_failedView = nullptr;
    WTConfigFailedView *m_configFailedView = nullptr;
};
