#include "WTCServer.h"

#include "DeviceTurns.h"
#include "LibraryLog.h"
#include "UsbPort.h"

#include <mutex>

using namespace Qt::Literals::StringLiterals;

struct WTCServer::State {
    UsbPort *usb = nullptr;
    TimePort *time = nullptr;
    LibraryLog log;
    DeviceTurns turns;

    mutable std::mutex mutex; ///< Guards what follows.
    WTCServerDelegate *delegate = nullptr;
    std::vector<quint16> vendorIDs;
};

WTCServer::WTCServer()
    : m_state(std::make_unique<State>())
{
}

WTCServer &WTCServer::shared()
{
    static WTCServer *const server = new WTCServer;
    return *server;
}

void WTCServer::usePorts(UsbPort &usb, TimePort &time)
{
    shared().m_state->usb = &usb;
    shared().m_state->time = &time;
}

WTCServer &WTCServer::sharedWithDelegate(WTCServerDelegate *delegate, int logLevel, const QString &logFilePath,
                                         const QString &cfgPath, const QString &modulePath)
{
    WTCServer &server = shared();
    {
        const std::lock_guard lock(server.m_state->mutex);
        server.m_state->delegate = delegate;
    }
    server.log().configure(logFilePath, logLevel);
    server.log().write(LibraryLog::Debug, u"cfgPath:%1, modulePath:%2"_s.arg(cfgPath, modulePath));
    return server;
}

void WTCServer::registerUSBSearchServiceWithVIDs(const QStringList &vendorIDs)
{
    std::vector<quint16> numbers;
    for (const QString &text : vendorIDs) {
        bool isNumber = false;
        const quint16 number = text.toUShort(&isNumber, 0);
        if (isNumber)
            numbers.push_back(number);
        else
            log().write(LibraryLog::Warning, u"not a vendor ID: %1"_s.arg(text));
    }
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->vendorIDs = numbers;
    }
    log().write(LibraryLog::Info, u"search started: %1"_s.arg(vendorIDs.join(u' ')));
    usb().watch(numbers, [](const UsbDeviceList &list) { shared().report(list); });
}

void WTCServer::removeUSBSearchService()
{
    usb().stopWatching();
    log().write(LibraryLog::Info, u"search stopped"_s);
}

void WTCServer::report(const UsbDeviceList &list)
{
    std::vector<WTCDevice> devices;
    QStringList names;
    for (const UsbDevice &device : list) {
        devices.push_back(deviceFromUsb(device));
        names += devices.back().URI;
    }
    log().write(LibraryLog::Info, u"devices: %1 %2"_s.arg(devices.size()).arg(names.join(u' ')));
    std::unique_lock lock(m_state->mutex);
    WTCServerDelegate *const delegate = m_state->delegate;
    lock.unlock();
    if (delegate)
        delegate->refreshUSBPrinterList(devices);
}

UsbPort &WTCServer::usb() const
{
    return *m_state->usb;
}

TimePort &WTCServer::time() const
{
    return *m_state->time;
}

LibraryLog &WTCServer::log() const
{
    return m_state->log;
}

DeviceTurns &WTCServer::turns() const
{
    return m_state->turns;
}

std::vector<quint16> WTCServer::vendorIDs() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->vendorIDs;
}
