#pragma once

#include "CauseText.h"
#include "WTView.h"

class ResultPanel;
class WTButton;

/// Says why the run failed. The only button ends the application.
class WTFailedView : public WTView
{
    Q_OBJECT

public:
    explicit WTFailedView(const QString &logFolder, QWidget *parent = nullptr);

    void awakeFromNib() override;
    void viewDidApear() override;

    /// Set before this screen is pushed; a value that is not set again stays as it was.
    void setShowInterfaceError(bool show) { m_showInterfaceError = show; }
    bool showInterfaceError() const { return m_showInterfaceError; }
    void setShowWiFiCapabilityError(bool show) { m_showWiFiCapabilityError = show; }
    bool showWiFiCapabilityError() const { return m_showWiFiCapabilityError; }
    void setWifiCapabilityError(quint64 code) { m_wifiCapabilityError = code; }
    quint64 wifiCapabilityError() const { return m_wifiCapabilityError; }

    /// Set before this screen is pushed, each time.
    void setCause(const CauseText &cause) { m_cause = cause; }

    /// Shows the text that the three values above choose, and the cause.
    void ff_judgeError();
    void backAction();

private:
    ResultPanel *m_errorMessage;
    WTButton *m_complateBtn;
    bool m_showInterfaceError = false;
    bool m_showWiFiCapabilityError = false;
    quint64 m_wifiCapabilityError = 0;
    CauseText m_cause;
};
