#pragma once

#include "NetworkChoice.h"
#include "NetworkPorts.h"

#include <QObject>
#include <functional>

/// The networks of the list screen in display order, the choice among them, and what is asked of the computer for it.
/// Main thread.
class WTWiFiListViewModel : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void()>;
    using StatusCallback = std::function<void(qint32 status)>;
    /// Why the screen looks for networks.
    enum class Occasion { Entry, Refresh };

    explicit WTWiFiListViewModel(const NetworkPorts &ports, QObject *parent = nullptr);

    // -- networks -----------------------------------------------------------------------------------------------
    const std::vector<WTWiFiPtr> &list_WIFI() const { return m_list; }

    /// Begins a search of the person's. Called before `waitForPermission` or `readHostState`.
    void beginSearch();
    /// Asks for the visible networks and calls back when the list is the new one, or, after a failure, the old one. The
    /// answer to an earlier call is dropped.
    void fetchWIFIList(Callback callBack);

    /// Makes `items` the list: as received, but the network the computer is joined to comes first, with its password.
    void reloadDataSource(const std::vector<WTC_WLAN> &items, const Callback &callBack);

    NetworkChoice &choice() { return m_choice; }

    /// The host has told the password of the network `ssid`: the joined network comes first again, with its password.
    /// @return whether the password may go into the field.
    bool takeStoredPassword(const QString &ssid);

    // -- the computer -------------------------------------------------------------------------------------------
    /// The network that the computer was joined to when the permission was given last.
    std::optional<QString> currentSSID() const { return m_currentSSID; }

    /// Whether the host must be asked before the networks are looked for.
    static bool needsPermission();
    /// Asks for that permission and runs the event loop for 5 seconds. Each answer of the host goes to `answered`.
    /// @return false when the five seconds ended without an answer, and no later search is waiting for one.
    bool waitForPermission(Occasion occasion, const StatusCallback &answered);
    /// Where no permission is needed: reads the host's state and asks for the joined network's password.
    void readHostState(Occasion occasion);
    /// Whether the password at hand belongs to another network than the computer is joined to now.
    static bool mustFetchPassword(bool isConnected, const std::optional<QString> &joined,
                                  const std::optional<QString> &current);

    /// Whether the printer's print queue is busy. Waits for the spooler.
    bool isWorkingWithPrintType(const QString &printType) const;
    /// Whether a scan job holds the printer.
    static bool isScanAvaiable();
    /// Whether the print queue is busy or a scan job holds the printer.
    bool isPrinterBusy(const QString &printType) const;

    // -- what may be typed --------------------------------------------------------------------------------------
    static bool isVailePassword(const QString &password);
    /// 64, whatever the mode.
    static qsizetype maxLengthBy(qint64 security);
    /// The first `index` units of a longer text; one less where the cut would go through a surrogate pair.
    static QString subString(const QString &text, qsizetype index);
    static bool isLegalPwd(const QString &password, qint64 authMode);
    /// A name of 1 to 32 bytes of UTF-8, and a password that is legal for the listed network of that name, the chosen
    /// one before others.
    bool canGoNext(const NetworkEntry &fields) const;
    /// The hint for the fields, in the interface language; empty for none.
    QString hint(const NetworkEntry &fields) const;

    QObject *view = nullptr; ///< The screen; not used for logic.

private:
    void putJoinedNetworkFirst();
    /// The chosen network if it has that name, else the first one that has; null without one.
    const WTWiFi *listedNetwork(const QString &name) const;

    NetworkPorts m_ports;
    std::vector<WTWiFiPtr> m_list;
    NetworkChoice m_choice;
    std::optional<QString> m_currentSSID;
    quint64 m_search = 0; ///< The latest search of the person.
    quint64 m_fetch = 0;  ///< The latest request for the list.
};
