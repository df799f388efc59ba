#include "TextFormat.h"

#include <QVarLengthArray>
#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// One placeholder, taken apart: flags, width, length modifier and conversion letter.
struct Placeholder {
    bool zeroFilled = false;
    qsizetype width = 0;
    qsizetype longs = 0;
    qsizetype shorts = 0;
    char16_t conversion = 0;
};

/// Reads the placeholder behind the per cent sign at `position` and moves `position` behind it.
Placeholder readPlaceholder(QStringView format, qsizetype &position)
{
    Placeholder found;
    const auto next = [&] { return position < format.size() ? format[position].unicode() : u'\0'; };
    for (; next() == u'0'; ++position)
        found.zeroFilled = true;
    for (; next() >= u'0' && next() <= u'9'; ++position)
        found.width = found.width * 10 + (next() - u'0');
    for (; next() == u'l' || next() == u'h'; ++position)
        ++(next() == u'l' ? found.longs : found.shorts);
    found.conversion = next();
    ++position;
    return found;
}

bool isConversion(char16_t letter)
{
    switch (letter) {
    case u'@':
    case u's':
    case u'd':
    case u'i':
    case u'u':
    case u'x':
    case u'X':
        return true;
    default:
        return false;
    }
}

/// A negative number in an unsigned conversion shows the bits of the width that the length modifier names.
quint64 unsignedBits(const Placeholder &placeholder, qint64 number)
{
    if (number >= 0 || placeholder.longs > 0)
        return static_cast<quint64>(number);
    return placeholder.shorts > 0 ? static_cast<quint16>(number) : static_cast<quint32>(number);
}

using Line = QVarLengthArray<QChar, 256>;

void appendPadded(Line &line, const Placeholder &placeholder, QStringView text)
{
    qsizetype length = text.size();
    if (placeholder.zeroFilled && text.startsWith(u'-')) {
        line.append(u'-');
        text = text.sliced(1);
    }
    for (; length < placeholder.width; ++length)
        line.append(placeholder.zeroFilled ? u'0' : u' ');
    line.append(text.data(), text.size());
}

void appendNumber(Line &line, const Placeholder &placeholder, const FormatArgument &argument)
{
    constexpr std::size_t longestNumber = 20;
    std::array<char, longestNumber> latin;
    char *const first = latin.data();
    char *const last = first + latin.size();
    const quint64 bits = unsignedBits(placeholder, argument.number());
    char *end = first;
    switch (placeholder.conversion) {
    case u'u':
        end = std::to_chars(first, last, bits).ptr;
        break;
    case u'x':
    case u'X':
        end = std::to_chars(first, last, bits, 16).ptr;
        break;
    default:
        end = argument.isNegative() ? std::to_chars(first, last, argument.number()).ptr
                                    : std::to_chars(first, last, static_cast<quint64>(argument.number())).ptr;
    }
    std::array<char16_t, longestNumber> digits;
    const bool isUpperCase = placeholder.conversion == u'X';
    char16_t *const lastDigit = std::transform(first, end, digits.data(), [&](char digit) {
        return static_cast<char16_t>(isUpperCase && digit >= 'a' ? digit - 'a' + 'A' : digit);
    });
    appendPadded(line, placeholder, QStringView(digits.data(), lastDigit));
}

void appendArgument(Line &line, const Placeholder &placeholder, const FormatArgument &argument)
{
    if (argument.isNumber())
        appendNumber(line, placeholder, argument);
    else
        appendPadded(line, placeholder, argument.view());
}

} // namespace

FormatArgument::FormatArgument(const std::optional<QString> &text)
{
    if (text)
        m_value = *text;
}

FormatArgument::FormatArgument(const char *utf8)
{
    if (utf8)
        m_value = QString::fromUtf8(utf8);
}

FormatArgument::FormatArgument(const QByteArray &bytes)
    : m_value(describeBytes(bytes))
{
}

FormatArgument::FormatArgument(const std::optional<QByteArray> &bytes)
{
    if (bytes)
        m_value = describeBytes(*bytes);
}

QString FormatArgument::text() const
{
    if (const auto *text = std::get_if<QString>(&m_value))
        return *text;
    if (const auto *number = std::get_if<qint64>(&m_value))
        return QString::number(*number);
    if (const auto *number = std::get_if<quint64>(&m_value))
        return QString::number(*number);
    return u"(null)"_s;
}

QStringView FormatArgument::view() const
{
    if (const auto *text = std::get_if<QString>(&m_value))
        return *text;
    return isNumber() ? QStringView() : QStringView(u"(null)");
}

bool FormatArgument::isNegative() const
{
    const auto *number = std::get_if<qint64>(&m_value);
    return number && *number < 0;
}

bool FormatArgument::isNumber() const
{
    return std::holds_alternative<qint64>(m_value) || std::holds_alternative<quint64>(m_value);
}

qint64 FormatArgument::number() const
{
    if (const auto *number = std::get_if<qint64>(&m_value))
        return *number;
    if (const auto *number = std::get_if<quint64>(&m_value))
        return static_cast<qint64>(*number);
    return 0;
}

QString formatText(QStringView format, std::initializer_list<FormatArgument> arguments)
{
    const FormatArgument absent(std::nullopt);
    Line line;
    const FormatArgument *argument = arguments.begin();
    for (qsizetype position = 0; position < format.size();) {
        const auto *const start = format.begin() + position;
        const auto *const percent = std::find(start, format.end(), u'%');
        line.append(start, percent - start);
        position = percent - format.begin();
        if (percent == format.end())
            break;
        const Placeholder placeholder = readPlaceholder(format, ++position);
        if (placeholder.conversion == u'%') {
            line.append(u'%');
        } else if (isConversion(placeholder.conversion)) {
            appendArgument(line, placeholder, argument == arguments.end() ? absent : *argument++);
        } else {
            position = qMin(position, format.size());
            line.append(percent, format.begin() + position - percent);
        }
    }
    return QString(line.constData(), line.size());
}

QString describeBytes(const QByteArray &bytes)
{
    constexpr qsizetype shownWhole = 24, shownAhead = 16, shownBehind = 8;
    QString digits = QString::fromLatin1(bytes.toHex());
    if (bytes.size() > shownWhole)
        digits = QString::fromLatin1(bytes.first(shownAhead).toHex()) + u" ... "_s +
                 QString::fromLatin1(bytes.last(shownBehind).toHex());
    return u"{length = %1, bytes = 0x%2}"_s.arg(QString::number(bytes.size()), digits);
}
