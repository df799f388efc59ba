#include "WTNetworkWithManualAdditionModel.h"

#include "NetworkRules.h"

QString WTNetworkWithManualAdditionModel::passwordAfterTyping(const QString &typed)
{
    const QString password = NetworkRules::cutPassword(typed);
    if (NetworkRules::isVailePassword(password))
        m_lastPwd = password;
    return m_lastPwd;
}

WTNetworkWithManualAdditionModel::Next WTNetworkWithManualAdditionModel::next(const QString &name,
                                                                              const QString &password)
{
    if (name.isEmpty())
        return Next::EmptyName;
    return NetworkRules::isPasswordTooLong(NetworkRules::cutPassword(password)) ? Next::PasswordTooLong : Next::Go;
}

WTWiFiPtr WTNetworkWithManualAdditionModel::network(const QString &name, const QString &password)
{
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = name;
    wifi->password = NetworkRules::cutPassword(password);
    wifi->security = 0;
    return wifi;
}
