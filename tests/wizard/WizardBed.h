#pragma once

#include "FakeHost.h"
#include "FakeSpooler.h"
#include "UsbTestBed.h"
#include "WTWindow.h"
#include "WizardScreens.h"

#include <QTemporaryDir>

/// A desktop whose panels leave a file behind.
class TracingDesktop : public FakeDesktop
{
public:
    bool hasPanels = true;

    QString addPrinterCommandLine() override;
    QString privacySettingsCommandLine() override { return addPrinterCommandLine(); }
    bool panelWasOpened() const;

private:
    QString tracePath() const { return m_directory.filePath(QStringLiteral("opened")); }

    QTemporaryDir m_directory;
};

/// The whole wizard in its window, over real libusb with emulated printers, in virtual time. Only one bed may exist at
/// a time, and the application object must outlive it.
class WizardBed
{
public:
    /// @param printers the models on the bus, in the order of their ports.
    /// @param language what the screens speak.
    explicit WizardBed(const QList<ModelIdentity> &printers = {}, const QString &language = QStringLiteral("zh-Hans"));
    /// On a bus that has its printers plugged already.
    WizardBed(std::shared_ptr<UsbTestBed> usb, qsizetype printerCount, const QString &language);
    ~WizardBed();

    template <typename Screen>
    Screen *screen()
    {
        return m_screens->window().findChild<Screen *>();
    }
    /// The class of the screen that shows.
    QByteArray shown();
    /// A widget of the screen that shows, by its object name; the test ends without it.
    QWidget *widget(const char *name);
    void click(const char *name);

    /// One more printer on the bus.
    void plugIn(const ModelIdentity &printer);
    /// Waits until the manager lists as many printers as are on the bus.
    bool findPrinters();
    bool waitFor(const std::function<bool()> &done);

    WTWindow &window() { return m_screens->window(); }
    UsbfsBed &bus() { return m_usb->bus; }
    VirtualTime &time() { return m_usb->time; }

    FakeHostWiFi hostWiFi;
    TracingDesktop desktop;
    FakeSpooler spooler;
    int processEnds = 0; ///< How often a screen ended the process.

private:
    std::shared_ptr<UsbTestBed> m_usb;
    qsizetype m_printerCount = 0;
    std::unique_ptr<WizardScreens> m_screens;
};
