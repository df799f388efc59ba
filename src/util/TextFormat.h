#pragma once

#include <QByteArray>
#include <QString>
#include <concepts>
#include <initializer_list>
#include <optional>
#include <variant>

/// One argument of `formatText`. An absent text prints as "(null)".
class FormatArgument
{
public:
    FormatArgument(std::nullopt_t) {}
    FormatArgument(const QString &text)
        : m_value(text)
    {
    }
    FormatArgument(const std::optional<QString> &text);
    FormatArgument(const char *utf8);
    /// Bytes are described by length and hexadecimal digits, see `describeBytes`.
    FormatArgument(const QByteArray &bytes);
    FormatArgument(const std::optional<QByteArray> &bytes);
    FormatArgument(std::signed_integral auto number)
        : m_value(qint64{number})
    {
    }
    FormatArgument(std::unsigned_integral auto number)
        : m_value(quint64{number})
    {
    }

    QString text() const;
    /// The text, "(null)" when it is absent; empty for a number. Refers to the argument.
    QStringView view() const;
    bool isNumber() const;
    bool isNegative() const;
    /// The number, an unsigned one beyond the signed range as its bits; 0 for anything else.
    qint64 number() const;

private:
    std::variant<std::monostate, QString, qint64, quint64> m_value;
};

/// The program's one formatting function. Placeholders: `%@` any argument as text; `%d %ld %i` signed, `%u %lu %hu
/// %llu` unsigned, `%X %x` hexadecimal, each with an optional zero flag and width (`%04X`); a width before `@` fills up
/// with spaces on the left (`%6@`); `%s` as `%@`; `%%` a per cent sign. A placeholder without an argument prints as
/// "(null)", a text in a numeric placeholder as itself, and anything else after a per cent sign stays as it stands.
QString formatText(QStringView format, std::initializer_list<FormatArgument> arguments);

template <typename... Arguments>
QString formatText(const char *utf8Format, const Arguments &...arguments)
{
    return formatText(QString::fromUtf8(utf8Format), {FormatArgument(arguments)...});
}

/// "{length = 59, bytes = 0x1b25...}": all bytes up to 24, past that only the first 16 and the last 8, so that a frame
/// that holds a network's name and password never shows them.
QString describeBytes(const QByteArray &bytes);
