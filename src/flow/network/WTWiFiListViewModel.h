#pragma once

#include "WTWiFi.h"

#include <QObject>
#include <functional>
#include <vector>

/// The networks of the list screen in display order, and the rules for what may be typed. Main thread.
class WTWiFiListViewModel : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void()>;

    using QObject::QObject;

    const std::vector<WTWiFiPtr> &list_WIFI() const { return m_list; }

    /// Asks for the visible networks and calls back when the list is the new one, or, after a failure, the old one.
    void fetchWIFIList(Callback callBack);

    /// Makes `items` the list: as received, but the network the computer is joined to comes first, with its password.
    void reloadDataSource(const std::vector<WTC_WLAN> &items, const Callback &callBack);

    /// Puts the joined network first again, with the password that is known by now.
    void putJoinedNetworkFirst();

    static bool isVailePassword(const QString &password);
    /// 64, whatever the mode.
    static qsizetype maxLengthBy(qint64 security);
    /// The first `index` units of a longer text; one less where the cut would go through a surrogate pair.
    static QString subString(const QString &text, qsizetype index);
    static bool isLegalPwd(const QString &password, qint64 authMode);

    /// A name of 1 to 32 bytes of UTF-8, and a password that is legal for the first listed network of that name.
    bool canGoNext(const QString &name, const QString &password) const;

    QObject *view = nullptr; ///< The screen; not used for logic.

private:
    std::vector<WTWiFiPtr> m_list;
};
