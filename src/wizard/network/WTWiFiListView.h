#pragma once

#include "WTPrinter.h"
#include "WTView.h"
#include "WTWiFiListViewModel.h"

class DesktopPort;
class NetworkForm;
class NetworkListPanel;
class NetworkRows;
class PrinterNoteLabel;
class WTButton;
class WTDefaultStyleBtn;
class WTInstallingView;
class WTListView;
class WTTextfield;

/// The networks that the computer sees, the joined one first with its stored password, and the fields for name and
/// password. The printer gets what the fields hold; the list only fills them.
class WTWiFiListView : public WTView
{
    Q_OBJECT

public:
    WTWiFiListView(const NetworkPorts &ports, DesktopPort &desktop, QWidget *parent = nullptr);

    void setPrinter(const WTPrinterPtr &printer);
    WTPrinterPtr printer() const { return m_printer; }
    void setInstallingView(WTInstallingView *view) { m_installingView = view; }

    void awakeFromNib() override;
    void viewDidApear() override;

    WTWiFiListViewModel *viewModel() { return m_viewModel; }
    int selectRow() const { return m_viewModel->choice().row(); }
    bool editedSSID() const { return m_viewModel->choice().editedSSID(); }
    bool enableRefresh() const { return m_enableRefresh; }
    QString lastPwd() const;
    std::optional<QString> currentSSID() const { return m_viewModel->currentSSID(); }
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
    bool isWorkingWithPrintType(const QString &printType) const;
    /// Whether a scan job holds the printer.
    bool isScanAvaiable() const;
    void showIsworkingAlert();
    void back();
    void next();

private:
    void layOut();
    void lookForNetworks(WTWiFiListViewModel::Occasion occasion);
    void sayThatNobodyAnswered();
    void listArrived();
    void startLoading();
    void stopLoading();
    void reloadTable();
    void updateFieldsAndNext();
    void showLocationAlert();
    void storedPasswordArrived(const QString &ssid);
    void nameEdited();
    void logMaximumLength();

    DesktopPort &m_desktop;
    WTPrinterPtr m_printer;
    WTInstallingView *m_installingView = nullptr;
    WTWiFiListViewModel *m_viewModel;
    bool m_enableRefresh = true;
    bool m_asksForLocation = false; ///< The location alert, or what follows from it, is open.
    /// The refresh button gets the keyboard back: it lost it to the list when it was disabled.
    bool m_returnsKeyboard = false;

    PrinterNoteLabel *m_printerNote;
    NetworkRows *m_rows;
    NetworkListPanel *m_panel;
    WTListView *m_wifiListView;
    WTButton *m_updateButton;
    NetworkForm *m_form;
    WTDefaultStyleBtn *m_nextBtn;
    WTButton *m_previous;
};
