#include "NetworkRules.h"

#include "Localized.h"
#include "TextFormat.h"
#include "cutText.h"
#include "untrustedText.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace
{

bool isNameTooLong(const QString &name)
{
    return name.toUtf8().size() > NetworkRules::maximumNameBytes;
}

} // namespace

QString NetworkRules::cutName(const QString &name)
{
    return cutText(name, maximumNameLength);
}

QString NetworkRules::cutPassword(const QString &password)
{
    return cutText(password, maximumPasswordLength);
}

bool NetworkRules::isVailePassword(const QString &password)
{
    // \z and not $, which would let a line end pass behind the text.
    static const QRegularExpression pattern(u"\\A[ -~¥€£•]{0,64}\\z"_s);
    return pattern.match(password).hasMatch();
}

QString NetworkRules::passwordAfterEdit(const QString &typed, const QString &lastValid)
{
    const QString password = cutPassword(typed);
    return isVailePassword(password) ? password : lastValid;
}

bool NetworkRules::isNoName(const QString &name)
{
    return name.trimmed().isEmpty();
}

bool NetworkRules::isNameUsable(const QString &name)
{
    return !isNoName(name) && !isNameTooLong(name) && isSendable(name);
}

QString NetworkRules::nameError(const QString &name)
{
    if (!isSendable(name))
        return localized(u"名称含有控制字符，无法发送给打印机。"_s);
    return isNameTooLong(name) ? localized(u"名称太长：最多 32 个字节。"_s) : QString();
}

bool NetworkRules::isPasswordTooLong(const QString &password)
{
    return password.toUtf8().size() > maximumPasswordBytes;
}

QString NetworkRules::passwordError(const QString &password)
{
    if (!isSendable(password))
        return localized(u"密码含有控制字符，无法发送给打印机。"_s);
    return isPasswordTooLong(password) ? passwordLimitText() : QString();
}

QString NetworkRules::passwordLimitText()
{
    return formatText(localized(u"打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。"_s), {maximumPasswordBytes});
}
