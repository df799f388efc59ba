#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <optional>

/// The program's one test for "present and not empty": a text that is more than white space and line ends, bytes, a
/// list or a dictionary with content, any other present value. An absent value never is.
bool isSafe(const QString &text);
bool isSafe(const QByteArray &bytes);
/// null, numbers and booleans are safe; an undefined value is absent.
bool isSafe(const QJsonValue &value);

template <typename Element>
bool isSafe(const QList<Element> &list)
{
    return !list.isEmpty();
}

template <typename Value>
bool isSafe(const std::optional<Value> &value)
{
    return value.has_value() && isSafe(*value);
}
