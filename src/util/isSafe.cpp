#include "isSafe.h"

#include <QJsonArray>
#include <QJsonObject>

bool isSafe(QStringView text)
{
    return !text.trimmed().isEmpty();
}

bool isSafe(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::String:
        return isSafe(value.toString());
    case QJsonValue::Array:
        return !value.toArray().isEmpty();
    case QJsonValue::Object:
        return !value.toObject().isEmpty();
    case QJsonValue::Undefined:
        return false;
    case QJsonValue::Null:
    case QJsonValue::Bool:
    case QJsonValue::Double:
        return true;
    }
    return false;
}
