#pragma once

#include "WTWiFi.h"

#include <QString>

/// What the manual entry screen decides: the password that an edit leaves, and where "next" leads.
class WTNetworkWithManualAdditionModel
{
public:
    enum class Next { EmptyName, PasswordTooLong, Go };

    /// The last password that passed validation.
    QString lastPwd() const { return m_lastPwd; }
    void setLastPwd(const QString &password) { m_lastPwd = password; }

    /// What the password field is to hold once the user has made it `typed`: the cut text, which is kept, or the last
    /// valid one again.
    QString passwordAfterTyping(const QString &typed);

    static Next next(const QString &name, const QString &password);
    /// The network to configure; its security stays 0, whatever the real one uses.
    static WTWiFiPtr network(const QString &name, const QString &password);

private:
    QString m_lastPwd;
};
