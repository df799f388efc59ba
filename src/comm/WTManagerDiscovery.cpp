#include "WTManager.h"

#include "InfoList.h"
#include "Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int everyLogLevel = 255;

/// Where the communication library finds loadable modules, beside the installed program.
QString moduleFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../lib/wifitool"_L1);
}

QString describe(const std::vector<WTCDevice> &devices)
{
    QStringList texts;
    for (const WTCDevice &device : devices)
        texts +=
            formatText("%@ (0x%04X:0x%04X at 0x%08X)", device.printerType, device.VID, device.PID, device.locationID);
    return u'(' + texts.join(u", "_s) + u')';
}

std::shared_ptr<WTUSB> usbSideOf(const WTCDevice &device)
{
    auto usb = std::make_shared<WTUSB>();
    usb->PID = device.PID;
    usb->VID = device.VID;
    usb->locationID = device.locationID;
    usb->printerName = device.printerType;
    usb->serialNumber = device.serialNumber;
    usb->manufacturer = device.manufacturer;
    usb->setURI(device.URI);
    return usb;
}

WTPrinterPtr printerOf(const WTCDevice &device)
{
    WTPrinterPtr printer = WTPrinter::initWithPrinterType(device.printerType);
    printer->serialNumber = device.serialNumber;
    printer->connectionType = WTPrinter::ConnectedByUsb;
    printer->usbObj = usbSideOf(device);
    return printer;
}

} // namespace

void WTManager::wt_startDiscoverPrinter()
{
    m_printerList.removeAllObjects();
    logInfo("wt_startDiscoverPrinter");
    discoverPrinter();
}

void WTManager::wt_stopDiscoverPrinter()
{
    logInfo("wt_stopDiscoverPrinter");
    WTCServer::shared().removeUSBSearchService();
}

void WTManager::discoverPrinter()
{
    const QString modulePath = moduleFolder();
    const auto cfgPath = InfoList::value(u"CFG"_s);
    logDebug("logPath:%@", logPath());
    logDebug("cfgPath:%@", cfgPath);
    logDebug("modulePath:%@", modulePath);
    WTCServer::sharedWithDelegate(this, everyLogLevel, logPath(), cfgPath.value_or(QString()), modulePath)
        .registerUSBSearchServiceWithVIDs({u"0x6A1B"_s, u"0x6A1C"_s});
}

void WTManager::refreshUSBPrinterList(const std::vector<WTCDevice> &devices)
{
    logInfo("USB Printers count:%ld, %@", devices.size(), describe(devices));
    m_printerList.removeAllObjects();
    for (const WTCDevice &device : devices) {
        const WTPrinterPtr printer = printerOf(device);
        if (isVaildFile(printer->printerType()) && isWifiPrinter(printer->printerType()))
            m_printerList.addObject(printer);
    }
    std::unique_lock lock{m_mutex};
    const auto listener = m_printerListListener;
    lock.unlock();
    if (listener)
        listener();
}

void WTManager::setPrinterListListener(std::function<void()> listener)
{
    const std::lock_guard lock{m_mutex};
    m_printerListListener = std::move(listener);
}
