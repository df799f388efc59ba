#include "WTNetworkWithManualAdditionModel.h"

#include "Localized.h"
#include "PrinterPassword.h"
#include "cutText.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

QString WTNetworkWithManualAdditionModel::cutName(const QString &name)
{
    return cutText(name, maximumNameLength);
}

QString WTNetworkWithManualAdditionModel::cutPassword(const QString &password)
{
    return cutText(password, maximumPasswordLength);
}

QString WTNetworkWithManualAdditionModel::passwordAfterTyping(const QString &typed)
{
    const QString password = cutPassword(typed);
    if (isVailePassword(password))
        m_lastPwd = password;
    return m_lastPwd;
}

bool WTNetworkWithManualAdditionModel::isVailePassword(const QString &password)
{
    // \z and not $, which would let a line end pass behind the text.
    static const QRegularExpression pattern(u"\\A[ -~¥€£•]{0,64}\\z"_s);
    return pattern.match(password).hasMatch();
}

bool WTNetworkWithManualAdditionModel::isNameTooLong(const QString &name)
{
    return name.toUtf8().size() > maximumNameBytes;
}

QString WTNetworkWithManualAdditionModel::nameError(const QString &name)
{
    return isNameTooLong(name) ? localized(u"名称太长：最多 32 个字节。"_s) : QString();
}

bool WTNetworkWithManualAdditionModel::canGoNext(const QString &name)
{
    return !name.isEmpty() && !isNameTooLong(name);
}

WTNetworkWithManualAdditionModel::Next WTNetworkWithManualAdditionModel::next(const QString &name,
                                                                              const QString &password)
{
    if (name.isEmpty())
        return Next::EmptyName;
    return PrinterPassword::isTooLong(cutPassword(password)) ? Next::PasswordTooLong : Next::Go;
}

WTWiFiPtr WTNetworkWithManualAdditionModel::network(const QString &name, const QString &password)
{
    auto wifi = std::make_shared<WTWiFi>();
    wifi->SSID = name;
    wifi->password = cutPassword(password);
    wifi->security = 0;
    return wifi;
}
