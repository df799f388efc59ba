#pragma once

#include "WTNetwork.h"
#include "WTUSB.h"

#include <QString>
#include <memory>

struct WTBluetoothRecord {
};
struct WTWiFiRecord {
};

class WTPrinter;
using WTPrinterPtr = std::shared_ptr<WTPrinter>;

/// One discovered printer. Every report of the search service makes new objects; screens share the one that they hold.
class WTPrinter
{
public:
    /// How a printer is connected. Only `ConnectedByUsb` is ever assigned.
    enum ConnectionType : quint64 { NotConnected = 0, ConnectedByUsb = 1 };

    /// A printer of the model that `printerType` names, with the flags that the catalogue gives it.
    static WTPrinterPtr initWithPrinterType(const QString &printerType);

    /// The model designation; empty when none is known.
    QString printerType() const { return m_printerType; }
    /// Stores the model designation found in `name` (`wtc_extractPrinterType`), not `name` itself.
    void setPrinterType(const QString &name);

    /// Reads `wifiPrinter`, `wifiCode` and `oldAcl` from the catalogue file. Only an entry whose name is exactly the
    /// model designation counts; without one the flags stay as they are.
    void configPrinter();

    bool wifiPrinter = false; ///< The catalogue says that the model supports Wi-Fi.
    bool oldAcl = false;      ///< The catalogue says that the model speaks the old ACL dialect.
    qint64 wifiCode = 0;      ///< The catalogue's "supportWifi": 1 supported, -1 to be asked of the printer.
    quint64 connectionType = NotConnected;
    QString serialNumber;
    QString hostName;
    QString ip; ///< Stored by the configuration run.
    QString MAC;
    QString printerIconPath;
    std::shared_ptr<WTUSB> usbObj;
    std::shared_ptr<WTNetwork> netObj;
    std::shared_ptr<WTBluetoothRecord> btObj; ///< Reserved.
    std::shared_ptr<WTWiFiRecord> wifiObj;    ///< Reserved.

private:
    QString m_printerType;
};
