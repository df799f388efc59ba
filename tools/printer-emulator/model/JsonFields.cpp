#include "JsonFields.h"

#include <QJsonArray>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace
{
std::optional<QByteArray> bytesFromHex(const QJsonValue &value)
{
    const QByteArray text = value.toString().toLatin1();
    const QByteArray bytes = QByteArray::fromHex(text);
    return value.isString() && bytes.size() * 2 == text.size() ? std::optional(bytes) : std::nullopt;
}
} // namespace

JsonFields::JsonFields(QJsonObject object, QString where, QStringList &complaints)
    : m_object(std::move(object))
    , m_where(std::move(where))
    , m_complaints(complaints)
{
}

JsonFields::~JsonFields()
{
    for (const QString &key : m_object.keys())
        complain(key, u"unknown field"_s);
}

void JsonFields::readText(const QString &key, QByteArray &target)
{
    const QJsonValue value = take(key);
    if (value.isString())
        target = value.toString().toUtf8();
    else if (!value.isUndefined())
        complain(key, u"a text is wanted"_s);
}

void JsonFields::readBytes(const QString &key, std::optional<QByteArray> &target)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return;
    target = bytesFromHex(value);
    if (!target)
        complain(key, u"bytes as pairs of hexadecimal digits are wanted"_s);
}

void JsonFields::readBytes(const QString &key, QByteArray &target)
{
    std::optional<QByteArray> bytes;
    readBytes(key, bytes);
    if (bytes)
        target = *bytes;
}

void JsonFields::readCode(const QString &key, std::optional<quint16> &target)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return;
    const std::optional<QByteArray> bytes = bytesFromHex(value);
    if (bytes && bytes->size() == 2)
        target = static_cast<quint16>(static_cast<quint8>(bytes->front()) << 8 | static_cast<quint8>(bytes->back()));
    else
        complain(key, u"a command code such as \"FF80\" is wanted"_s);
}

void JsonFields::readCode(const QString &key, quint16 &target)
{
    std::optional<quint16> code;
    readCode(key, code);
    target = code.value_or(target);
}

void JsonFields::readSizes(const QString &key, std::vector<qsizetype> &target)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return;
    for (const auto &entry : value.toArray()) {
        if (!convert(entry, target.emplace_back()))
            complain(key, u"sizes are wanted"_s);
    }
    if (!value.isArray())
        complain(key, u"a list of sizes is wanted"_s);
}

std::optional<std::size_t> JsonFields::readChoice(const QString &key, const QStringList &choices)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return std::nullopt;
    const qsizetype index = choices.indexOf(value.toString());
    if (index >= 0)
        return static_cast<std::size_t>(index);
    complain(key, u"one of %1 is wanted"_s.arg(choices.join(u", "_s)));
    return std::nullopt;
}

std::optional<QJsonObject> JsonFields::object(const QString &key)
{
    const QJsonValue value = take(key);
    if (value.isObject())
        return value.toObject();
    if (!value.isUndefined())
        complain(key, u"an object is wanted"_s);
    return std::nullopt;
}

std::vector<QJsonObject> JsonFields::objects(const QString &key)
{
    const QJsonValue value = take(key);
    std::vector<QJsonObject> objects;
    for (const auto &entry : value.toArray()) {
        if (!entry.isObject())
            complain(key, u"objects are wanted"_s);
        objects.push_back(entry.toObject());
    }
    if (!value.isUndefined() && !value.isArray())
        complain(key, u"a list is wanted"_s);
    return objects;
}

QJsonValue JsonFields::take(const QString &key)
{
    return m_object.take(key); // Undefined when there is none.
}

void JsonFields::complain(const QString &key, const QString &what)
{
    m_complaints.append(u"%1.%2: %3"_s.arg(m_where, key, what));
}

bool JsonFields::convert(const QJsonValue &value, bool &target)
{
    if (value.isBool())
        target = value.toBool();
    return value.isBool();
}

std::optional<qint64> JsonFields::wholeNumber(const QJsonValue &value, qint64 least, qint64 most)
{
    const double number = value.toDouble(std::nan(""));
    if (!(number >= static_cast<double>(least) && number <= static_cast<double>(most)) || std::trunc(number) != number)
        return std::nullopt;
    return static_cast<qint64>(number);
}
