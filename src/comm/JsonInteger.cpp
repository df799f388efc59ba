#include "JsonInteger.h"

#include <QString>
#include <charconv>
#include <cmath>
#include <limits>

namespace
{

using Limits = std::numeric_limits<qint64>;

qint64 truncated(const QJsonValue &number)
{
    constexpr double beyond = 0x1p63;
    const double value = number.toDouble();
    if (value >= beyond)
        return number.toInteger(Limits::max());
    if (value < -beyond)
        return Limits::min();
    return number.toInteger(static_cast<qint64>(value));
}

qint64 leadingDigits(const QString &text)
{
    QByteArray digits = text.trimmed().toUtf8();
    if (digits.startsWith('+') && !digits.startsWith("+-"))
        digits.remove(0, 1);
    qint64 value = 0;
    const auto [end, fault] = std::from_chars(digits.cbegin(), digits.cend(), value);
    if (fault == std::errc::result_out_of_range)
        return digits.startsWith('-') ? Limits::min() : Limits::max();
    return value;
}

} // namespace

qint64 jsonInteger(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? 1 : 0;
    case QJsonValue::Double:
        return truncated(value);
    case QJsonValue::String:
        return leadingDigits(value.toString());
    case QJsonValue::Null:
    case QJsonValue::Array:
    case QJsonValue::Object:
    case QJsonValue::Undefined:
        return 0;
    }
    return 0;
}
