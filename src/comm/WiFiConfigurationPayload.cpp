#include "WiFiConfigurationPayload.h"

#include "PrinterAnswer.h"
#include "untrustedText.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

WTError refusal(const QString &reason)
{
    return {printerErrorDomain, static_cast<int>(WTPrinterStatus::NoHeader), reason};
}

} // namespace

WTResult<QByteArray> WiFiConfigurationPayload::encode(const QString &ssid, const QString &password)
{
    const QByteArray secret = password.toUtf8();
    if (!isSendable(ssid))
        return refusal(u"the network's name holds a control character"_s);
    if (!isSendable(password))
        return refusal(u"the password holds a control character"_s);
    if (secret.size() > passwordLimit)
        return refusal(u"the password is longer than the %1 bytes that a printer takes"_s.arg(passwordLimit));

    QByteArray payload = ssid.toUtf8().left(nameLimit).leftJustified(nameSize, '\0');
    payload += mark;
    payload += secret;
    return payload.leftJustified(size, '\0');
}
