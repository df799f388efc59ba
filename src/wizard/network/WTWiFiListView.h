#pragma once

#include "WTPrinter.h"
#include "WTView.h"
#include "WTWiFi.h"

class FieldFrame;
class KSPasswordField;
class LiveLabel;
class NetworkRows;
class WTButton;
class WTDefaultStyleBtn;
class WTInstallingView;
class WTListView;
class WTTextfield;
class WTWiFiListViewModel;

/// The networks that the computer sees, the joined one first with its stored password, and the fields for name and
/// password. The fields lead: what they hold is what the printer gets.
class WTWiFiListView : public WTView
{
    Q_OBJECT

public:
    explicit WTWiFiListView(QWidget *parent = nullptr);

    void setPrinter(const WTPrinterPtr &printer) { m_printer = printer; }
    WTPrinterPtr printer() const { return m_printer; }
    void setInstallingView(WTInstallingView *view) { m_installingView = view; }

    void awakeFromNib() override;
    void viewDidApear() override;

    WTWiFiListViewModel *viewModel();
    int selectRow() const { return m_selectRow; }
    bool editedSSID() const { return m_editedSSID; }
    bool enableRefresh() const { return m_enableRefresh; }
    QString lastPwd() const { return m_lastPwd; }
    std::optional<QString> currentSSID() const { return m_currentSSID; }
    /// The choice, computed on each read into one and the same object: the chosen row, or what the fields hold.
    WTWiFiPtr selectedWiFi();

    /// Starts the screen's work; called right after it was pushed. Returns after the wait for the permission.
    void ff_discoverPrinterAndUpdataWIFIList();
    void updateWifiList();
    void fetchWIFIList();
    void changeLocation(qint32 status);
    void tableView(int shouldSelectRow);
    void updateTextfieldSSIDAndPWD();
    void updateBtnNextStepState();
    void controlDidBecomeFirstResponder(WTTextfield *field);
    void controlTextDidChange(WTTextfield *field);
    void controlTextDidEndEditing(WTTextfield *field);
    void showPassword();
    /// Whether the printer's print queue is busy. Waits for the spooler.
    bool isWorkingWithPrintType(const QString &printType);
    /// Whether a scan job holds the printer.
    bool isScanAvaiable();
    void showIsworkingAlert();
    void back();
    void next();

private:
    void layOut();
    void startLoading();
    void stopLoading();
    void reloadTable();
    /// Asks for the permission to look for networks and gives the host 5 seconds of events to answer.
    void waitForPermission(bool refreshesHostState);
    void showLocationAlert();
    void storedPasswordArrived(const QString &ssid);
    void resetFieldFrames();
    /// Below the password: that it is too long for a printer, else that caps lock is on.
    void showPasswordError();

    WTPrinterPtr m_printer;
    WTInstallingView *m_installingView = nullptr;
    WTWiFiListViewModel *m_viewModel = nullptr;
    WTWiFiPtr m_selectedWiFi;
    int m_selectRow = 0;
    bool m_editedSSID = false;
    bool m_passwordTyped = false; ///< Since the fields were filled last.
    bool m_enableRefresh = true;
    bool m_asksForLocation = false; ///< The location alert is open.
    bool m_returnsKeyboard = false; ///< The list has the keyboard for the refresh button, which is disabled.
    QString m_lastPwd;
    std::optional<QString> m_currentSSID;

    NetworkRows *m_rows;
    WTListView *m_wifiListView;
    WTButton *m_updateButton;
    LiveLabel *m_activeView;
    WTTextfield *m_ssidTextField;
    KSPasswordField *m_passwordTextField;
    FieldFrame *m_ssidView;
    FieldFrame *m_passwordView;
    WTButton *m_showPwdBtn;
    WTDefaultStyleBtn *m_nextBtn;
    WTButton *m_previous;
};
