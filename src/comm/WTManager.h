#pragma once

#include "ModelCatalogue.h"
#include "PrinterAnswer.h"
#include "TimePort.h"
#include "WTCServer.h"
#include "WTC_WLAN.h"
#include "WTPrinter.h"
#include "WTSafeArray.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

/// The process-wide printer manager: the printers on the USB bus, the model catalogue, the printer commands and the
/// application's close state. `shared()` and `refreshUSBPrinterList` may be called on any thread.
class WTManager : public WTCServerDelegate
{
public:
    /// How the window's close button behaves.
    enum CloseState : qint64 { CloseAsks = 0, CloseQuits = 1, CloseIgnored = 2 };

    /// Called once, before the first use of `shared()`.
    static void usePorts(TimePort &time);
    static WTManager &shared();
    WTManager(const WTManager &) = delete;
    WTManager &operator=(const WTManager &) = delete;

    // -- discovery ----------------------------------------------------------------------------------------------
    /// Forgets the printers found so far and starts the search.
    void wt_startDiscoverPrinter();
    void wt_stopDiscoverPrinter();
    /// Hands the library its settings and registers the maker's vendor IDs.
    void discoverPrinter();
    /// Rebuilds `printerList` from the devices that the catalogue knows and marks as able to use Wi-Fi. Any thread; a
    /// reader may see a partial list meanwhile.
    void refreshUSBPrinterList(const std::vector<WTCDevice> &devices) override;
    /// Called after each rebuild of `printerList`, on the thread of the report; empty for none. Any thread.
    void setPrinterListListener(std::function<void()> listener);
    WTSafeArray<WTPrinterPtr> &printerList() { return m_printerList; }
    /// Stores a copy.
    void setPrinterList(const WTSafeArray<WTPrinterPtr> &list) { m_printerList = list; }

    // -- application-wide values --------------------------------------------------------------------------------
    qint64 closeEnable() const { return m_closeEnable; }
    void setCloseEnable(qint64 state) { m_closeEnable = state; }
    /// The communication library's own log file.
    QString logPath() const;
    void setLogPath(const QString &path);

    // -- catalogue ----------------------------------------------------------------------------------------------
    /// Reads the catalogue file into `installFileList`; an unusable one leaves it empty and logs why.
    void getInstallList();
    QJsonArray installFileList() const;
    void setInstallFileList(const QJsonArray &entries);
    // The rules of `ModelCatalogue`. Any thread.
    bool isVaildFile(const QString &printerType) const;
    bool isWifiPrinter(const QString &printerType) const;
    bool oldAclPrinter(const QString &printerType) const;

    // -- printer commands ---------------------------------------------------------------------------------------
    using StatusCallback = std::function<void(const ResultAnswer &answer)>;
    using AddressCallback = std::function<void(const AddressAnswer &answer)>;
    using WakeUpCallback = std::function<void(bool success, const std::optional<QString> &message)>;

    // A callback must be given, except where "may be empty" is said. The location ID is only logged.

    /// Checks a reply header; calls back before it returns. A header too short to tell its result counts as none.
    static void wt_cmd(quint16 cmd, const std::optional<QByteArray> &header, const StatusCallback &callBack);
    /// Rouses the printer and reports success whatever it answers. Main thread, except for an invalid URI (at once, on
    /// the calling thread). `complete` may be empty.
    static void wt_wakeUpPrinter(const QString &uri, quint32 locationID, WakeUpCallback complete);
    /// Result: whether the printer can be configured. Main thread.
    static void checkWiFiCapabilityFromPrinter(const QString &uri, quint32 locationID, StatusCallback callBack);
    /// Tells the printer which network to join. On a worker thread of the library, five seconds after a success. Never
    /// calls back when the network has no usable name. A password over 31 bytes is not sent and answers `NoHeader`.
    static void wifiConfigForPrinter(const QString &uri, quint32 locationID, const QString &ssid,
                                     const QString &password, StatusCallback callBack);
    /// The address that the printer obtained, else a text that tells the fault. Main thread.
    static void getIPAddressFromPrinter(const QString &uri, quint32 locationID, AddressCallback callBack);
    /// Makes the printer print its wireless-network information page. Main thread.
    static void printingWiFiInfoFromPrinter(const QString &uri, quint32 locationID, const QString &model,
                                            StatusCallback callBack);
    /// The zero-terminated text in that range of `data`; absent when the range runs past the end or holds no UTF-8.
    static std::optional<QString> ipByData(const QByteArray &data, qsizetype location, qsizetype length);

    TimePort &time() const;

    // -- reserved -----------------------------------------------------------------------------------------------
    WTSafeArray<std::shared_ptr<WTC_WLAN>> wifiList;
    std::function<void()> callback;
    std::unique_ptr<TimePort::Timer> localTimer;
    QByteArray PJL_UEL_DATA;
    QByteArray PJL_ENTERLANG_DATA;
    QJsonObject usbWifiCapablity;

private:
    WTManager();
    ModelCatalogue catalogue() const;

    WTSafeArray<WTPrinterPtr> m_printerList;
    std::atomic<qint64> m_closeEnable = CloseAsks;
    mutable std::mutex m_mutex;
    QString m_logPath;                           ///< Guarded by `m_mutex`.
    ModelCatalogue m_catalogue;                  ///< Guarded by `m_mutex`.
    std::function<void()> m_printerListListener; ///< Guarded by `m_mutex`.
};
