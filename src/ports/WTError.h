#pragma once

#include "UsbCause.h"

#include <QString>
#include <optional>
#include <utility>
#include <variant>

/// A failure as a value: which library or room it comes from, its code there, and a message that names what failed, on
/// what, and why. The message is a diagnostic for the log, in English; it never holds a password. Whoever decides by a
/// failure, or tells a person about it, reads code and cause, not the message.
struct WTError {
    QString domain; ///< Who numbers the code: "WTCOM", "USB", ...
    int code = 0;   ///< One of the domain's enum.
    QString message;
    /// What happened on the USB bus; absent for a failure that has nothing to do with it.
    std::optional<UsbCause> cause{};

    bool operator==(const WTError &) const = default;
};

/// Either the value that was asked for, or why there is none.
template <typename Value>
class [[nodiscard]] WTResult
{
public:
    WTResult(Value value)
        : m_content(std::in_place_index<0>, std::move(value))
    {
    }
    WTResult(WTError error)
        : m_content(std::in_place_index<1>, std::move(error))
    {
    }

    explicit operator bool() const { return m_content.index() == 0; }
    Value &value() { return std::get<0>(m_content); }
    const Value &value() const { return std::get<0>(m_content); }
    const WTError &error() const { return std::get<1>(m_content); }

private:
    std::variant<Value, WTError> m_content;
};
