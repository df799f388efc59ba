#include "WiFiConfigurationPayload.h"

#include "untrustedText.h"

std::optional<QByteArray> WiFiConfigurationPayload::encode(const QString &ssid, const QString &password)
{
    const QByteArray secret = password.toUtf8();
    if (secret.size() > passwordLimit || !isSendableNetworkName(ssid))
        return std::nullopt;

    QByteArray payload = ssid.toUtf8().left(nameLimit).leftJustified(nameSize, '\0');
    payload += mark;
    payload += secret;
    return payload.leftJustified(size, '\0');
}
