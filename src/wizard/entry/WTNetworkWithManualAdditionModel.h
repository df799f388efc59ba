#pragma once

#include "WTWiFi.h"

#include <QString>

/// What the manual entry screen may hold and where it may go: the rules for name and password.
class WTNetworkWithManualAdditionModel
{
public:
    static constexpr qsizetype maximumNameLength = 32; ///< UTF-16 units.
    static constexpr qsizetype maximumNameBytes = 32;  ///< In UTF-8.
    static constexpr qsizetype maximumPasswordLength = 64;

    enum class Next { EmptyName, PasswordTooLong, Go };

    /// The last password that passed validation.
    QString lastPwd() const { return m_lastPwd; }
    void setLastPwd(const QString &password) { m_lastPwd = password; }

    static QString cutName(const QString &name);
    static QString cutPassword(const QString &password);
    /// What the password field is to hold once the user has made it `typed`: the cut text, which is kept, or the last
    /// valid one again.
    QString passwordAfterTyping(const QString &typed);
    static bool isVailePassword(const QString &password);

    static bool isNameTooLong(const QString &name);
    /// The limit, in the interface language, where a name is over it; else empty.
    static QString nameError(const QString &name);
    static bool canGoNext(const QString &name);
    static Next next(const QString &name, const QString &password);
    /// The network to configure; its security stays 0, whatever the real one uses.
    static WTWiFiPtr network(const QString &name, const QString &password);

private:
    QString m_lastPwd;
};
