#pragma once

#include "WizardBed.h"

class QAbstractButton;
class QLineEdit;
class QListView;
class QMessageBox;
class WTWiFiListView;

/// The wizard with one printer found, and a computer that sees the networks Home, Cafe and Office.
class ListBed : public WizardBed
{
public:
    explicit ListBed(ScanPermission permission = ScanPermission::Allowed,
                     const QString &joined = QStringLiteral("Office"));
    /// On a bus that has one printer plugged already.
    ListBed(std::shared_ptr<UsbTestBed> usb, const QString &joined);

    static const VisibleNetwork home;
    static const VisibleNetwork cafe;
    static const VisibleNetwork office;

    static HostWiFiState joinedTo(const QString &ssid);

    WTWiFiListView &list();
    QLineEdit &name();
    QLineEdit &password();
    QAbstractButton &next();
    QListView &rows();
    QStringList shownNames();
    /// The sheet over the window, whatever screen shows; null when there is none.
    QMessageBox *alert();

    /// Clicks a button whose action waits five seconds, lets them pass, and runs `meanwhile` in the middle of them.
    void clickAndWait(const char *button, const std::function<void()> &meanwhile = {});
    /// From the start screen to the list, as a person gets there.
    void enter(const std::function<void()> &meanwhile = {});
    void choose(int row);
    static void type(QLineEdit &field, const QString &text);
    /// As from the clipboard.
    static void paste(QLineEdit &field, const QString &text);

private:
    void awaitPrinter();
    void prepare(ScanPermission permission, const QString &joined);
};
