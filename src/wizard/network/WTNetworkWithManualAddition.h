#pragma once

#include "WTNetworkWithManualAdditionModel.h"
#include "WTView.h"

class DesktopPort;
class NetworkForm;
class PrinterNoteLabel;
class ScreenFrame;
class WTButton;
class WTCustomTextFieldFromatter;
class WTDefaultStyleBtn;
class WTInstallingView;
class WTTextfield;

/// Name and password of a network, typed by hand: for a computer that cannot list networks, its Wi-Fi being off or
/// absent. Also lets the printer print its page of wireless-network information.
class WTNetworkWithManualAddition : public WTView
{
    Q_OBJECT

public:
    WTNetworkWithManualAddition(SpoolerPort &spooler, DesktopPort &desktop, QWidget *parent = nullptr);

    /// Set by the screen that pushes this one.
    void setPrinter(const WTPrinterPtr &printer);
    WTPrinterPtr printer() const { return m_printer; }
    void setInstallingView(WTInstallingView *view) { m_installingView = view; }

    void awakeFromNib() override;
    void viewDidApear() override;

    /// The last password that passed validation.
    QString lastPwd() const;

    /// Styles the controls and connects them.
    void ff_config();
    void wt_resetShowPwdBtn();
    void showPassword();
    void controlDidBecomeFirstResponder(WTTextfield *field);
    void controlTextDidChange(WTTextfield *field);
    void controlTextDidEndEditing(WTTextfield *field);
    void updateBtnNextStepState();
    static bool isVailePassword(const QString &password);
    /// Whether the printer's print queue is busy. Waits for the spooler.
    bool isWorkingWithPrintType(const QString &printType) const;
    void showIsworkingAlert();
    /// Prints the information page.
    void printWiFiList();
    /// Goes on to the configuration run.
    void nextView();
    void backPrevious();

private:
    void layOut();
    void showPageSent(const ResultAnswer &answer);

    WTNetworkWithManualAdditionModel m_model;
    DesktopPort &m_desktop;
    WTPrinterPtr m_printer;
    WTInstallingView *m_installingView = nullptr;
    ScreenFrame *m_frame;
    PrinterNoteLabel *m_printerNote;
    NetworkForm *m_form;
    WTCustomTextFieldFromatter *m_pwdFormatter;
    WTDefaultStyleBtn *m_nextBtn;
    WTButton *m_previousBtn;
    WTButton *m_printWiFiHomePage;
};
