#pragma once

#include "ArrayOperations.h"
#include "LockedCollection.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QVariant>

/// A mutable dictionary whose every operation takes one lock. What holds for `LockedArray` holds here: one operation is
/// atomic, blocks and tests run while the lock is held and must not touch the same dictionary. Keys come in ascending
/// order.
template <typename Key, typename Value>
class BKThreadSafeDictionary
{
public:
    using Dictionary = QMap<Key, Value>;
    using Keys = QList<Key>;
    using Values = QList<Value>;

    BKThreadSafeDictionary() = default;
    explicit BKThreadSafeDictionary(const Dictionary &dictionary)
        : m_dic(dictionary)
    {
    }
    /// The objects are values, so they are copied whatever `copyItems` says.
    BKThreadSafeDictionary(const Dictionary &dictionary, bool /*copyItems*/)
        : BKThreadSafeDictionary(dictionary)
    {
    }
    /// Throws std::out_of_range when there are fewer keys than objects.
    BKThreadSafeDictionary(const Values &objects, const Keys &forKeys)
        : BKThreadSafeDictionary(paired(objects, forKeys))
    {
    }
    BKThreadSafeDictionary(const Value *objects, const Key *forKeys, qsizetype count)
        : BKThreadSafeDictionary(Values(objects, objects + count), Keys(forKeys, forKeys + count))
    {
    }
    BKThreadSafeDictionary(const BKThreadSafeDictionary &other)
        : BKThreadSafeDictionary(other.contents())
    {
    }
    BKThreadSafeDictionary &operator=(const BKThreadSafeDictionary &other)
    {
        setDictionary(other.contents());
        return *this;
    }
    /// The capacity is ignored.
    static BKThreadSafeDictionary initWithCapacity(qsizetype /*capacity*/) { return {}; }

    // Reading
    qsizetype count() const
    {
        return read([](const Dictionary &entries) { return entries.size(); });
    }
    std::optional<Value> objectForKey(const Key &key) const
    {
        return read([&](const Dictionary &entries) { return find(entries, key); });
    }
    std::optional<Value> objectForKeyedSubscript(const Key &key) const { return objectForKey(key); }
    Keys keyEnumerator() const { return allKeys(); }
    Values objectEnumerator() const { return allValues(); }
    Keys allKeys() const
    {
        return read([](const Dictionary &entries) { return entries.keys(); });
    }
    Keys allKeysForObject(const Value &object) const
    {
        return read([&](const Dictionary &entries) { return entries.keys(object); });
    }
    Values allValues() const
    {
        return read([](const Dictionary &entries) { return entries.values(); });
    }
    QString description() const { return descriptionWithLocale(QLocale::c(), 0); }
    QString descriptionWithLocale(const QLocale &locale) const { return descriptionWithLocale(locale, 0); }
    QString descriptionWithLocale(const QLocale &locale, qsizetype indent) const
    {
        return read([&](const Dictionary &entries) {
            const QString margin(indent * 4, QLatin1Char(' '));
            const QString format = margin + QLatin1StringView("    %1 = %2;\n");
            return margin + QLatin1StringView("{\n") + describeEntries(entries, format, locale) + margin + u'}';
        });
    }
    QString descriptionInStringsFileFormat() const
    {
        return read([](const Dictionary &entries) {
            return describeEntries(entries, QLatin1StringView("\"%1\" = \"%2\";\n"), QLocale::c());
        });
    }
    Values objectsForKeys(const Keys &keys, const Value &notFoundMarker) const
    {
        return read([&](const Dictionary &entries) {
            Values objects;
            for (const Key &key : keys)
                objects.append(entries.value(key, notFoundMarker));
            return objects;
        });
    }
    /// The first `count` entries at most.
    void getObjects(Values &objects, Keys &andKeys, qsizetype count) const
    {
        read([&](const Dictionary &entries) {
            const qsizetype wanted = qMin(count, entries.size());
            objects = entries.values().first(wanted);
            andKeys = entries.keys().first(wanted);
        });
    }
    Dictionary entriesForKeys(const Keys &keys) const
    {
        return read([&](const Dictionary &entries) { return pick(entries, keys); });
    }
    QString jsonStringEncoded() const { return json(QJsonDocument::Compact); }
    QString jsonPrettyStringEncoded() const { return json(QJsonDocument::Indented); }
    /// Equal dictionaries have equal hashes: the hash is the count.
    size_t hash() const { return static_cast<size_t>(count()); }
    /// Copies the next `count` keys at most to `keys`, as `LockedArray` does with objects.
    qsizetype countByEnumeratingWithState(ArrayEnumerationState &state, Key *keys, qsizetype count) const
    {
        return m_dic.readCounted([&](const Dictionary &entries, quint64 changes) {
            return ArrayOperations::nextBatch(entries.keys(), changes, state, keys, count);
        });
    }

    // Calling out while locked
    /// `block(key, object, stop)`; setting `stop` ends the enumeration.
    template <typename Block>
    void enumerateKeysAndObjectsUsingBlock(Block &&block) const
    {
        enumerateKeysAndObjectsWithOptions(EnumerationOption::Forward, block);
    }
    template <typename Block>
    void enumerateKeysAndObjectsWithOptions(EnumerationOption options, Block &&usingBlock) const
    {
        read([&](const Dictionary &entries) { enumerate(entries, options, usingBlock); });
    }
    template <typename Selector>
    Keys keysSortedByValueUsingSelector(Selector &&selector) const
    {
        return keysSortedByValueUsingComparator(
            [&](const Value &left, const Value &right) { return std::invoke(selector, left, right); });
    }
    template <typename Comparator>
    Keys keysSortedByValueUsingComparator(Comparator &&comparator) const
    {
        return read([&](const Dictionary &entries) {
            Keys keys = entries.keys();
            ArrayOperations::sort(keys, [&](const Key &left, const Key &right) {
                return comparator(*entries.find(left), *entries.find(right));
            });
            return keys;
        });
    }
    template <typename Comparator>
    Keys keysSortedByValueWithOptions(SortOption /*options*/, Comparator &&usingComparator) const
    {
        return keysSortedByValueUsingComparator(usingComparator);
    }
    /// The test takes `(key, object, stop)`.
    template <typename Test>
    QSet<Key> keysOfEntriesPassingTest(Test &&test) const
    {
        return keysOfEntriesWithOptions(EnumerationOption::Forward, test);
    }
    template <typename Test>
    QSet<Key> keysOfEntriesWithOptions(EnumerationOption options, Test &&passingTest) const
    {
        QSet<Key> passed;
        enumerateKeysAndObjectsWithOptions(options, [&](const Key &key, const Value &object, bool &stop) {
            if (passingTest(key, object, stop))
                passed.insert(key);
        });
        return passed;
    }

    // Changing
    void setObject(const Value &object, const Key &forKey)
    {
        change([&](Dictionary &entries) { entries.insert(forKey, object); });
    }
    void addEntriesFromDictionary(const Dictionary &dictionary)
    {
        change([&](Dictionary &entries) { entries.insert(dictionary); });
    }
    void setDictionary(const Dictionary &dictionary)
    {
        change([&](Dictionary &entries) { entries = dictionary; });
    }
    void removeObjectForKey(const Key &key) { removeObjectsForKeys({key}); }
    void removeObjectsForKeys(const Keys &keys) { popEntriesForKeys(keys); }
    void removeAllObjects() { setDictionary({}); }
    std::optional<Value> popObjectForKey(const Key &key)
    {
        return change([&](Dictionary &entries) {
            const std::optional<Value> object = find(entries, key);
            entries.remove(key);
            return object;
        });
    }
    Dictionary popEntriesForKeys(const Keys &keys)
    {
        return change([&](Dictionary &entries) {
            const Dictionary popped = pick(entries, keys);
            for (const Key &key : keys)
                entries.remove(key);
            return popped;
        });
    }

    // Copying and comparing
    BKThreadSafeDictionary copy() const { return mutableCopy(); }
    BKThreadSafeDictionary mutableCopy() const { return BKThreadSafeDictionary(*this); }
    bool isEqual(const BKThreadSafeDictionary &other) const { return m_dic.isEqual(other.m_dic); }
    /// A plain dictionary, or anything else, is never equal.
    template <typename Other>
    bool isEqual(const Other &) const
    {
        return false;
    }
    template <typename Other>
    bool isEqualToDictionary(const Other &other) const
    {
        return isEqual(other);
    }

private:
    template <typename Reader>
    auto read(Reader &&reader) const
    {
        return m_dic.read(reader);
    }

    template <typename Writer>
    auto change(Writer &&writer)
    {
        return m_dic.change(writer);
    }

    Dictionary contents() const
    {
        return read([](const Dictionary &entries) { return entries; });
    }

    static Dictionary paired(const Values &objects, const Keys &keys)
    {
        ArrayOperations::requireRange(ArrayOperations::whole(objects.size()), keys.size());
        Dictionary entries;
        for (qsizetype index = 0; index < objects.size(); ++index)
            entries.insert(keys.at(index), objects.at(index));
        return entries;
    }

    static std::optional<Value> find(const Dictionary &entries, const Key &key)
    {
        const auto found = entries.find(key);
        return found == entries.end() ? std::nullopt : std::optional(*found);
    }

    static Dictionary pick(const Dictionary &entries, const Keys &keys)
    {
        Dictionary picked;
        for (const Key &key : keys) {
            if (const auto object = find(entries, key))
                picked.insert(key, *object);
        }
        return picked;
    }

    template <typename Block>
    static void enumerate(const Dictionary &entries, EnumerationOption option, Block &&block)
    {
        ArrayOperations::enumerate(entries.keys(), option, [&](const Key &key, qsizetype, bool &stop) {
            block(key, *entries.find(key), stop);
        });
    }

    static QString describeEntries(const Dictionary &entries, const QString &format, const QLocale &locale)
    {
        QString text;
        for (auto entry = entries.begin(); entry != entries.end(); ++entry)
            text += format.arg(ArrayOperations::describe(entry.key(), locale),
                               ArrayOperations::describe(entry.value(), locale));
        return text;
    }

    QString json(QJsonDocument::JsonFormat format) const
    {
        return read([&](const Dictionary &entries) {
            QVariantMap texts;
            for (auto entry = entries.begin(); entry != entries.end(); ++entry)
                texts.insert(ArrayOperations::describe(entry.key()), QVariant::fromValue(entry.value()));
            return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(texts)).toJson(format));
        });
    }

    LockedCollection<Dictionary> m_dic;
};
