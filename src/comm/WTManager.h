#pragma once

#include "WTCServer.h"
#include "WTPrinter.h"
#include "WTSafeArray.h"

#include <QByteArray>
#include <QJsonArray>
#include <QString>
#include <functional>
#include <optional>

class SpoolerPort;
class TimePort;

/// Codes that the completions of printer operations receive.
enum class WTPrinterStatus : int {
    Success = 0,
    NoHeader = 1, ///< Also: the printer refused; the result tells.
    LibraryError31 = 2,
    CommandMismatch = 3,
    DataTooShort = 5,
    NoValidAddress = 6,
    NoData = 7,
};

/// The process-wide printer manager: the printers on the USB bus, the model catalogue, the printer commands and the
/// application's close state. `shared()` may be called on any thread, `refreshUSBPrinterList` too.
class WTManager : public WTCServerDelegate
{
public:
    /// How the window's close button behaves.
    enum CloseState : qint64 { CloseAsks = 0, CloseQuits = 1, CloseIgnored = 2 };

    /// Called once, before the first use of `shared()`.
    static void usePorts(TimePort &time, SpoolerPort &spooler);
    static WTManager &shared();

    // -- discovery ----------------------------------------------------------------------------------------------
    void wt_startDiscoverPrinter();
    void wt_stopDiscoverPrinter();
    void discoverPrinter();
    void refreshUSBPrinterList(const std::vector<WTCDevice> &devices) override;
    WTSafeArray<WTPrinterPtr> &printerList();

    // -- application-wide values --------------------------------------------------------------------------------
    qint64 closeEnable() const;
    void setCloseEnable(qint64 state);
    QString logPath() const;
    void setLogPath(const QString &path);

    // -- catalogue ----------------------------------------------------------------------------------------------
    void getInstallList();
    bool isVaildFile(const QString &printerType) const;
    bool isWifiPrinter(const QString &printerType) const;
    bool oldAclPrinter(const QString &printerType) const;

    // -- printer commands ---------------------------------------------------------------------------------------
    using StatusCallback = std::function<void(int status, quint16 result)>;
    using AddressCallback = std::function<void(int status, const QString &text)>;
    using WakeUpCallback = std::function<void(bool success, const std::optional<QString> &message)>;

    /// Checks a reply header; calls back before it returns.
    static void wt_cmd(quint16 cmd, const std::optional<QByteArray> &header, const StatusCallback &callBack);
    /// Main thread, except for an invalid URI (at once, on the calling thread).
    static void wt_wakeUpPrinter(const QString &uri, quint32 locationID, WakeUpCallback complete);
    /// Main thread.
    static void checkWiFiCapabilityFromPrinter(const QString &uri, quint32 locationID, StatusCallback callBack);
    /// On the library's worker thread, five seconds after a success.
    static void wifiConfigForPrinter(const QString &uri, quint32 locationID, const QString &ssid,
                                     const QString &password, StatusCallback callBack);
    /// Main thread.
    static void getIPAddressFromPrinter(const QString &uri, quint32 locationID, AddressCallback callBack);
    /// Main thread.
    static void printingWiFiInfoFromPrinter(const QString &uri, quint32 locationID, const QString &model,
                                            StatusCallback callBack);
    static QString ipByData(const QByteArray &data, qsizetype location, qsizetype length);

    SpoolerPort &spooler() const;
    TimePort &time() const;
};
