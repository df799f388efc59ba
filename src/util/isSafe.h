#pragma once

#include <QJsonValue>
#include <QString>
#include <memory>
#include <optional>
#include <type_traits>

/// The program's one test for "present and not empty": a text that is more than white space and line ends, bytes, any
/// collection with content, any other present value. An absent value never is.
bool isSafe(QStringView text);
inline bool isSafe(const QString &text)
{
    return isSafe(QStringView(text));
}
/// null, numbers and booleans are safe; an undefined value is absent.
bool isSafe(const QJsonValue &value);

/// Whatever can be absent: safe when what it holds is.
template <typename Value>
bool isSafe(const std::optional<Value> &value);
template <typename Value>
bool isSafe(const std::shared_ptr<Value> &value);

template <typename Value>
bool isSafe(const Value &value)
{
    if constexpr (std::is_convertible_v<const Value &, QStringView>)
        return isSafe(QStringView(value));
    else if constexpr (requires { value.isEmpty(); })
        return !value.isEmpty();
    else if constexpr (requires { value.empty(); })
        return !value.empty();
    else if constexpr (requires { value.count(); })
        return value.count() != 0;
    else if constexpr (std::is_convertible_v<const Value &, QJsonValue>)
        return isSafe(QJsonValue(value));
    else
        return true;
}

template <typename Value>
bool isSafe(const std::optional<Value> &value)
{
    return value.has_value() && isSafe(*value);
}

template <typename Value>
bool isSafe(const std::shared_ptr<Value> &value)
{
    return value && isSafe(*value);
}
