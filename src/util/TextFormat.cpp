#include "TextFormat.h"

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

/// A negative number in an unsigned conversion shows the bits of the width that the length modifier names.
quint64 unsignedBits(const Placeholder &placeholder, qint64 number)
{
    if (number >= 0 || placeholder.longs > 0)
        return static_cast<quint64>(number);
    return placeholder.shorts > 0 ? static_cast<quint16>(number) : static_cast<quint32>(number);
}

QString convert(const Placeholder &placeholder, const FormatArgument &argument)
{
    if (!argument.isNumber())
        return argument.text();
    switch (placeholder.conversion) {
    case u'u':
        return QString::number(unsignedBits(placeholder, argument.number()));
    case u'x':
        return QString::number(unsignedBits(placeholder, argument.number()), 16);
    case u'X':
        return QString::number(unsignedBits(placeholder, argument.number()), 16).toUpper();
    default:
        return argument.text();
    }
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
    QString result;
    result.reserve(format.size() + 64);
    const FormatArgument *argument = arguments.begin();
    qsizetype position = 0;
    while (position < format.size()) {
        const qsizetype percent = format.indexOf(u'%', position);
        if (percent < 0)
            break;
        result += format.sliced(position, percent - position);
        position = percent + 1;
        const Placeholder placeholder = readPlaceholder(format, position);
        if (placeholder.conversion == u'%') {
            result += u'%';
            continue;
        }
        if (QStringView(u"@sdiuxX").indexOf(QChar(placeholder.conversion)) < 0) {
            position = qMin(position, format.size());
            result += format.sliced(percent, position - percent);
            continue;
        }
        const QString text =
            argument == arguments.end() ? FormatArgument(std::nullopt).text() : convert(placeholder, *argument++);
        for (qsizetype length = text.size(); length < placeholder.width; ++length)
            result += placeholder.zeroFilled ? u'0' : u' ';
        result += text;
    }
    if (position < format.size())
        result += format.sliced(position);
    return result;
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
