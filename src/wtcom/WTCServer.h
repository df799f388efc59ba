#pragma once

#include "WTCDevice.h"

#include <QStringList>
#include <memory>
#include <vector>

class DeviceTurns;
class LibraryLog;
class TimePort;

/// Receives the search service's reports.
class WTCServerDelegate
{
public:
    virtual ~WTCServerDelegate() = default;
    /// The complete current list, whenever it changes; on the library's watch thread.
    virtual void refreshUSBPrinterList(const std::vector<WTCDevice> &devices) = 0;
};

/// The communication library: its settings and its USB search service. One per process.
class WTCServer
{
public:
    /// The machine the library works on. Once, before anything else; both live until the process has ended, since a
    /// send may be under way until then.
    static void usePorts(UsbPort &usb, TimePort &time);

    static WTCServer &sharedWithDelegate(WTCServerDelegate *delegate, int logLevel, const QString &logFilePath,
                                         const QString &cfgPath, const QString &modulePath);
    static WTCServer &shared();

    /// Vendor IDs as text in the form "0x6A1B". Reports the list once soon after and then on every change.
    void registerUSBSearchServiceWithVIDs(const QStringList &vendorIDs);
    void removeUSBSearchService();

    UsbPort &usb() const;
    TimePort &time() const;
    LibraryLog &log() const;
    DeviceTurns &turns() const;
    /// The vendor IDs of the last registration, also after the search has ended.
    std::vector<quint16> vendorIDs() const;

private:
    WTCServer();
    void report(const UsbDeviceList &list);

    struct State;
    std::unique_ptr<State> m_state;
};
