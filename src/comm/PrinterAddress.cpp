#include "PrinterAddress.h"

#include "WTManager.h"
#include "untrustedText.h"

#include <QRegularExpression>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr qsizetype leastForIPv6 = 65;
constexpr qsizetype leastForUnstatus = 176;

constexpr QStringView ipv4Pattern{uR"(^((25[0-5]|2[0-4]\d|[01]?\d\d?)\.){3}(25[0-5]|2[0-4]\d|[01]?\d\d?)$)"};

constexpr QStringView ipv6Pattern{
    uR"(^([\da-fA-F]{1,4}:){6}((25[0-5]|2[0-4]\d|[01]?\d\d?)\.){3}(25[0-5]|2[0-4]\d|[01]?\d\d?)$)"
    uR"(|^::([\da-fA-F]{1,4}:){0,4}((25[0-5]|2[0-4]\d|[01]?\d\d?)\.){3}(25[0-5]|2[0-4]\d|[01]?\d\d?)$)"
    uR"(|^([\da-fA-F]{1,4}:):([\da-fA-F]{1,4}:){0,3}((25[0-5]|2[0-4]\d|[01]?\d\d?)\.){3}(25[0-5]|2[0-4]\d|[01]?\d\d?)$)"
    uR"(|^([\da-fA-F]{1,4}:){2}:([\da-fA-F]{1,4}:){0,2}((25[0-5]|2[0-4]\d|[01]?\d\d?)\.){3}(25[0-5]|2[0-4]\d|[01]?\d\d?)$)"
    uR"(|^([\da-fA-F]{1,4}:){3}:([\da-fA-F]{1,4}:){0,1}((25[0-5]|2[0-4]\d|[01]?\d\d?)\.){3}(25[0-5]|2[0-4]\d|[01]?\d\d?)$)"
    uR"(|^([\da-fA-F]{1,4}:){4}:((25[0-5]|2[0-4]\d|[01]?\d\d?)\.){3}(25[0-5]|2[0-4]\d|[01]?\d\d?)$)"
    uR"(|^([\da-fA-F]{1,4}:){7}[\da-fA-F]{1,4}$)"
    uR"(|^:((:[\da-fA-F]{1,4}){1,6}|:)$)"
    uR"(|^[\da-fA-F]{1,4}:((:[\da-fA-F]{1,4}){1,5}|:)$)"
    uR"(|^([\da-fA-F]{1,4}:){2}((:[\da-fA-F]{1,4}){1,4}|:)$)"
    uR"(|^([\da-fA-F]{1,4}:){3}((:[\da-fA-F]{1,4}){1,3}|:)$)"
    uR"(|^([\da-fA-F]{1,4}:){4}((:[\da-fA-F]{1,4}){1,2}|:)$)"
    uR"(|^([\da-fA-F]{1,4}:){5}:([\da-fA-F]{1,4})?$)"
    uR"(|^([\da-fA-F]{1,4}:){6}:$)"};

/// The pattern for a whole text. "^...$" would also match a text with a line end behind it.
QRegularExpression wholeText(QStringView pattern)
{
    return QRegularExpression{QRegularExpression::anchoredPattern(pattern)};
}

std::optional<QString> fieldOf(const QByteArray &data, AddressField field)
{
    return visibleText(WTManager::ipByData(data, field.offset, field.size));
}

} // namespace

bool isIPv4Address(const QString &text)
{
    static const QRegularExpression pattern = wholeText(ipv4Pattern);
    return pattern.match(text).hasMatch();
}

bool isIPv6Address(const QString &text)
{
    static const QRegularExpression pattern = wholeText(ipv6Pattern);
    return pattern.match(text).hasMatch();
}

AddressCandidates addressCandidates(const QByteArray &data)
{
    return {.ipv4 = fieldOf(data, ipv4Field),
            .ipv6 = data.size() >= leastForIPv6 ? fieldOf(data, ipv6Field) : u""_s,
            .unstatus = data.size() >= leastForUnstatus ? fieldOf(data, unstatusField) : u""_s};
}

std::optional<QString> chooseAddress(const AddressCandidates &candidates)
{
    if (candidates.ipv4 && isIPv4Address(*candidates.ipv4))
        return candidates.ipv4;
    if (candidates.ipv6 && isIPv6Address(*candidates.ipv6))
        return candidates.ipv6;
    if (candidates.unstatus && isIPv6Address(*candidates.unstatus))
        return candidates.unstatus;
    return std::nullopt;
}
