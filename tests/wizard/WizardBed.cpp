#include "WizardBed.h"

#include "InfoList.h"
#include "LogCollector.h"
#include "SendWorkers.h"
#include "WTApp.h"
#include "WTCServer.h"
#include "WTC_WLAN.h"
#include "WTManager.h"
#include "WTView.h"
#include "askInBackground.h"

#include <QFile>
#include <QTest>

QString TracingDesktop::addPrinterCommandLine()
{
    return hasPanels ? QStringLiteral("touch '%1'").arg(tracePath()) : QString();
}

bool TracingDesktop::panelWasOpened() const
{
    return QFile::exists(tracePath());
}

WizardBed::WizardBed(const QList<ModelIdentity> &printers, const QString &language)
    : WizardBed(std::make_shared<UsbTestBed>(), 0, language)
{
    for (const ModelIdentity &printer : printers)
        plugIn(printer);
}

WizardBed::WizardBed(std::shared_ptr<UsbTestBed> usb, qsizetype printerCount, const QString &language)
    : m_usb(std::move(usb))
    , m_printerCount(printerCount)
{
    InfoList::setResourceFolder(QStringLiteral(WT_RESOURCE_FOLDER));
    WTCServer::usePorts(m_usb->port, m_usb->time);
    WTC_WLAN::usePort(hostWiFi);
    WTManager::usePorts(m_usb->time);
    WTApp::usePorts(hostWiFi, desktop, {});
    WTApp::shared().setAppLanguage(language);

    const LogCollector log;
    const ScreenPorts ports{m_usb->time, spooler, desktop,
                            hostWiFi,    {},      QStringLiteral("/home/person/.local/state/Logs/wifitool")};
    m_screens = std::make_unique<WizardScreens>(ports, [this] { ++processEnds; });
    m_screens->show();
    window().activateWindow();
    if (!QTest::qWaitForWindowActive(&window()))
        qFatal("The window does not become active.");
    // Another thread logs the first list of printers. Without this wait the line could come in the middle of a test.
    if (!QTest::qWaitFor([&log] { return !log.lines().filter(QStringLiteral("USB Printers count")).isEmpty(); }))
        qFatal("The first search tells nothing.");
}

WizardBed::~WizardBed()
{
    m_screens.reset();
    WTManager::shared().wt_stopDiscoverPrinter();
    // The port must not be destroyed while a send or a question still uses it.
    waitFor([] { return SendWorkers::shared().isIdle() && isBackgroundIdle(); });
}

QByteArray WizardBed::shown()
{
    return window().contentView()->metaObject()->className();
}

QWidget *WizardBed::widget(const char *name)
{
    auto *found = window().contentView()->findChild<QWidget *>(QLatin1StringView(name));
    if (!found)
        qFatal("%s has no widget \"%s\".", shown().constData(), name);
    return found;
}

void WizardBed::click(const char *name)
{
    QTest::mouseClick(widget(name), Qt::LeftButton);
}

void WizardBed::plugIn(const ModelIdentity &printer)
{
    bus().plug(bus().addPrinter(PrinterModel(printer)));
    ++m_printerCount;
}

bool WizardBed::findPrinters()
{
    return waitFor([this] { return WTManager::shared().printerList().count() == m_printerCount; });
}

bool WizardBed::waitFor(const std::function<bool()> &done)
{
    return m_usb->runUntil(done);
}
