#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>
#include <chrono>
#include <limits>
#include <optional>
#include <type_traits>
#include <vector>

/// Reads the fields of one JSON object into variables that keep their value when their field is absent. A field of the
/// wrong kind and a field that nobody reads are complaints.
class JsonFields
{
public:
    /// Every complaint begins with `where` and is added to `complaints`, which outlives this object.
    JsonFields(QJsonObject object, QString where, QStringList &complaints);
    /// Complains of the fields that nobody has read.
    ~JsonFields();
    JsonFields(const JsonFields &) = delete;
    JsonFields &operator=(const JsonFields &) = delete;

    /// A flag, a whole number, a duration in milliseconds, or any of them as an optional.
    template <typename Value>
    void read(const QString &key, Value &target)
    {
        if (const QJsonValue value = take(key); !value.isUndefined() && !convert(value, target))
            complain(key, QStringLiteral("a number or flag in range is wanted"));
    }

    void readText(const QString &key, QByteArray &target);
    /// Bytes as hexadecimal text.
    void readBytes(const QString &key, QByteArray &target);
    void readBytes(const QString &key, std::optional<QByteArray> &target);
    /// A command code as hexadecimal text: "FF80".
    void readCode(const QString &key, quint16 &target);
    void readCode(const QString &key, std::optional<quint16> &target);
    void readSizes(const QString &key, std::vector<qsizetype> &target);
    /// The index of the field's word among `choices`; absent when the field is absent or holds another text.
    std::optional<std::size_t> readChoice(const QString &key, const QStringList &choices);

    std::optional<QJsonObject> object(const QString &key);
    /// The objects of an array; none when the field is absent.
    std::vector<QJsonObject> objects(const QString &key);

private:
    QJsonValue take(const QString &key);
    void complain(const QString &key, const QString &what);

    static bool convert(const QJsonValue &value, bool &target);
    static std::optional<qint64> wholeNumber(const QJsonValue &value, qint64 least, qint64 most);

    template <typename Number>
    requires std::is_integral_v<Number>
    static bool convert(const QJsonValue &value, Number &target)
    {
        using Limits = std::numeric_limits<Number>;
        constexpr qint64 most = sizeof(Number) < sizeof(qint64) ? static_cast<qint64>(Limits::max()) : qint64{1} << 53;
        const auto number = wholeNumber(value, 0, most);
        if (number)
            target = Number(*number);
        return number.has_value();
    }

    static bool convert(const QJsonValue &value, std::chrono::milliseconds &target)
    {
        int milliseconds = 0;
        const bool converted = convert(value, milliseconds);
        if (converted)
            target = std::chrono::milliseconds(milliseconds);
        return converted;
    }

    template <typename Value>
    static bool convert(const QJsonValue &value, std::optional<Value> &target)
    {
        return convert(value, target.emplace());
    }

    QJsonObject m_object;
    QString m_where;
    QStringList &m_complaints;
};
