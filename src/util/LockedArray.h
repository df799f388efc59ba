#pragma once

#include "ArrayOperations.h"
#include "LockedCollection.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>
#include <QVariant>

/// The base of the locked arrays: a mutable array whose every operation takes one lock, does its work on the list
/// behind it and releases the lock. `Array` is the class that derives from it; copies and derived arrays are of that
/// class.
///
/// Any thread. One operation is atomic, a sequence of them (`count`, then `objectAtIndex`) is not. Blocks, comparators,
/// functions, selectors and tests run while the lock is held and must not touch the same array.
///
/// A place or range beyond the end throws std::out_of_range; the array stays as it was and the lock is released. Where
/// there may be no such object, an operation answers an absent value.
template <typename Array, typename Element>
class LockedArray
{
public:
    using List = QList<Element>;
    using Place = std::optional<qsizetype>;

    LockedArray() = default;
    explicit LockedArray(const List &objects)
        : m_arr(objects)
    {
    }
    LockedArray(const Element *objects, qsizetype count)
        : LockedArray(List(objects, objects + count))
    {
    }
    /// A copy is again a mutable, locked array of its own.
    LockedArray(const LockedArray &other)
        : LockedArray(other.objectEnumerator())
    {
    }
    /// Never holds both locks at once.
    LockedArray &operator=(const LockedArray &other)
    {
        setArray(other.objectEnumerator());
        return *this;
    }

    static Array array() { return Array(); }
    static Array arrayWithCapacity(qsizetype capacity)
    {
        List objects;
        objects.reserve(capacity);
        return Array(objects);
    }
    static Array initWithCapacity(qsizetype capacity) { return arrayWithCapacity(capacity); }
    /// A JSON file that holds one array; absent when it cannot be read as that.
    static std::optional<Array> initWithContentsOfFile(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
        if (!document.isArray())
            return std::nullopt;
        List objects;
        for (const QVariant &object : document.array().toVariantList())
            objects.append(object.value<Element>());
        return Array(objects);
    }
    static std::optional<Array> initWithContentsOfURL(const QUrl &url)
    {
        return initWithContentsOfFile(url.toLocalFile());
    }

    // Reading
    qsizetype count() const
    {
        return read([](const List &list) { return list.size(); });
    }
    Element objectAtIndex(qsizetype index) const
    {
        return read([&](const List &list) { return ArrayOperations::at(list, index); });
    }
    Element objectAtIndexedSubscript(qsizetype index) const { return objectAtIndex(index); }
    std::optional<Element> firstObject() const
    {
        return read([](const List &list) { return list.isEmpty() ? std::nullopt : std::optional(list.first()); });
    }
    std::optional<Element> lastObject() const
    {
        return read([](const List &list) { return list.isEmpty() ? std::nullopt : std::optional(list.last()); });
    }
    bool containsObject(const Element &object) const
    {
        return read([&](const List &list) { return list.contains(object); });
    }
    Place indexOfObject(const Element &object) const
    {
        return read(
            [&](const List &list) { return ArrayOperations::find(list, object, ArrayOperations::whole(list.size())); });
    }
    Place indexOfObject(const Element &object, ArrayRange inRange) const
    {
        return read([&](const List &list) { return ArrayOperations::find(list, object, inRange); });
    }
    /// The elements of an array are values or pointers, and a pointer is equal only to itself: identity is equality.
    Place indexOfObjectIdenticalTo(const Element &object) const { return indexOfObject(object); }
    Place indexOfObjectIdenticalTo(const Element &object, ArrayRange inRange) const
    {
        return indexOfObject(object, inRange);
    }
    List getObjects(ArrayRange range) const
    {
        return read([&](const List &list) { return ArrayOperations::slice(list, range); });
    }
    List objectsAtIndexes(const IndexSet &indexes) const
    {
        return read([&](const List &list) { return ArrayOperations::pick(list, indexes); });
    }
    List subarrayWithRange(ArrayRange range) const { return getObjects(range); }
    std::optional<Element> firstObjectCommonWithArray(const List &other) const
    {
        return read([&](const List &list) { return ArrayOperations::firstCommon(list, other); });
    }
    QString componentsJoinedByString(const QString &separator) const
    {
        return read([&](const List &list) { return ArrayOperations::describeEach(list).join(separator); });
    }
    QString description() const { return descriptionWithLocale(QLocale::c(), 0); }
    QString descriptionWithLocale(const QLocale &locale) const { return descriptionWithLocale(locale, 0); }
    QString descriptionWithLocale(const QLocale &locale, qsizetype indent) const
    {
        return read([&](const List &list) {
            return ArrayOperations::describeLines(ArrayOperations::describeEach(list, locale), indent);
        });
    }
    /// The objects as they are now; walking them takes no lock and sees no later change.
    List objectEnumerator() const
    {
        return read([](const List &list) { return list; });
    }
    List reverseObjectEnumerator() const
    {
        return read([](const List &list) { return List(list.rbegin(), list.rend()); });
    }
    /// What a repeated sort could start from: the order as it is now.
    List sortedArrayHint() const { return objectEnumerator(); }
    /// Equal arrays have equal hashes: the hash is the count.
    size_t hash() const { return static_cast<size_t>(count()); }
    /// Copies the next `count` objects at most to `objects` and answers how many, 0 at the end. The lock is held for
    /// this batch only; throws std::logic_error when the array was changed since the first batch.
    qsizetype countByEnumeratingWithState(ArrayEnumerationState &state, Element *objects, qsizetype count) const
    {
        return m_arr.readCounted([&](const List &list, quint64 changes) {
            return ArrayOperations::nextBatch(list, changes, state, objects, count);
        });
    }

    // Deriving new arrays
    Array arrayByAddingObject(const Element &object) const { return arrayByAddingObjectsFromArray({object}); }
    Array arrayByAddingObjectsFromArray(const List &objects) const { return Array(objectEnumerator() + objects); }
    template <typename Function, typename Context>
    Array sortedArrayUsingFunction(Function &&function, Context &&context) const
    {
        return sortedArrayUsingComparator(
            [&](const Element &left, const Element &right) { return std::invoke(function, left, right, context); });
    }
    template <typename Function, typename Context>
    Array sortedArrayUsingFunction(Function &&function, Context &&context, const List & /*hint*/) const
    {
        return sortedArrayUsingFunction(function, context);
    }
    /// `selector` is a member function of the elements, or a function of two of them.
    template <typename Selector>
    Array sortedArrayUsingSelector(Selector &&selector) const
    {
        return sortedArrayUsingComparator(
            [&](const Element &left, const Element &right) { return std::invoke(selector, left, right); });
    }
    template <typename Comparator>
    Array sortedArrayUsingComparator(Comparator &&comparator) const
    {
        return Array(read([&](List list) {
            ArrayOperations::sort(list, comparator);
            return list;
        }));
    }
    template <typename Comparator>
    Array sortedArrayWithOptions(SortOption /*options*/, Comparator &&usingComparator) const
    {
        return sortedArrayUsingComparator(usingComparator);
    }

    // Calling out while locked
    template <typename Selector>
    void makeObjectsPerformSelector(Selector &&selector) const
    {
        enumerateObjectsUsingBlock([&](const Element &object, qsizetype, bool &) { std::invoke(selector, object); });
    }
    template <typename Selector, typename Argument>
    void makeObjectsPerformSelector(Selector &&selector, const Argument &withObject) const
    {
        enumerateObjectsUsingBlock(
            [&](const Element &object, qsizetype, bool &) { std::invoke(selector, object, withObject); });
    }
    /// `block(object, index, stop)`; setting `stop` ends the enumeration.
    template <typename Block>
    void enumerateObjectsUsingBlock(Block &&block) const
    {
        enumerateObjectsWithOptions(EnumerationOption::Forward, block);
    }
    template <typename Block>
    void enumerateObjectsWithOptions(EnumerationOption options, Block &&usingBlock) const
    {
        read([&](const List &list) { ArrayOperations::enumerate(list, options, usingBlock); });
    }
    template <typename Block>
    void enumerateObjectsAtIndexes(const IndexSet &indexes, EnumerationOption options, Block &&usingBlock) const
    {
        read([&](const List &list) { ArrayOperations::enumerateAt(list, indexes, options, usingBlock); });
    }
    /// The test takes `(object, index, stop)`.
    template <typename Test>
    Place indexOfObjectPassingTest(Test &&test) const
    {
        return indexOfObjectWithOptions(EnumerationOption::Forward, test);
    }
    template <typename Test>
    Place indexOfObjectWithOptions(EnumerationOption options, Test &&passingTest) const
    {
        return read([&](const List &list) { return ArrayOperations::firstPassing(list, {}, options, passingTest); });
    }
    template <typename Test>
    Place indexOfObjectAtIndexes(const IndexSet &indexes, EnumerationOption options, Test &&passingTest) const
    {
        return read(
            [&](const List &list) { return ArrayOperations::firstPassing(list, indexes, options, passingTest); });
    }
    template <typename Test>
    IndexSet indexesOfObjectsPassingTest(Test &&test) const
    {
        return indexesOfObjectsWithOptions(EnumerationOption::Forward, test);
    }
    template <typename Test>
    IndexSet indexesOfObjectsWithOptions(EnumerationOption options, Test &&passingTest) const
    {
        return read([&](const List &list) { return ArrayOperations::passing(list, {}, options, passingTest); });
    }
    template <typename Test>
    IndexSet indexesOfObjectsAtIndexes(const IndexSet &indexes, EnumerationOption options, Test &&passingTest) const
    {
        return read([&](const List &list) { return ArrayOperations::passing(list, indexes, options, passingTest); });
    }
    template <typename Comparator>
    Place indexOfObject(const Element &object, ArrayRange inSortedRange, BinarySearchOption options,
                        Comparator &&usingComparator) const
    {
        return read([&](const List &list) {
            return ArrayOperations::findSorted(list, object, inSortedRange, options, usingComparator);
        });
    }
    template <typename Function, typename Context>
    void sortUsingFunction(Function &&function, Context &&context)
    {
        sortUsingComparator(
            [&](const Element &left, const Element &right) { return std::invoke(function, left, right, context); });
    }
    template <typename Selector>
    void sortUsingSelector(Selector &&selector)
    {
        sortUsingComparator(
            [&](const Element &left, const Element &right) { return std::invoke(selector, left, right); });
    }
    /// `comparator(left, right)` is below, equal to or above 0: a number or an ordering.
    template <typename Comparator>
    void sortUsingComparator(Comparator &&comparator)
    {
        change([&](List &list) { ArrayOperations::sort(list, comparator); });
    }
    template <typename Comparator>
    void sortWithOptions(SortOption /*options*/, Comparator &&usingComparator)
    {
        sortUsingComparator(usingComparator);
    }

    // Changing
    void addObject(const Element &object)
    {
        change([&](List &list) { list.append(object); });
    }
    void insertObject(const Element &object, qsizetype atIndex)
    {
        change([&](List &list) { ArrayOperations::insert(list, atIndex, List{object}); });
    }
    /// Throws when there is no object.
    void removeLastObject()
    {
        change([](List &list) { ArrayOperations::remove(list, IndexSet{list.size() - 1}); });
    }
    void removeObjectAtIndex(qsizetype index) { removeObjectsAtIndexes({index}); }
    void replaceObjectAtIndex(qsizetype index, const Element &withObject)
    {
        change([&](List &list) { ArrayOperations::at(list, index) = withObject; });
    }
    void addObjectsFromArray(const List &objects)
    {
        change([&](List &list) { list.append(objects); });
    }
    void exchangeObjectAtIndex(qsizetype index, qsizetype withObjectAtIndex)
    {
        change([&](List &list) {
            using std::swap;
            swap(ArrayOperations::at(list, index), ArrayOperations::at(list, withObjectAtIndex));
        });
    }
    void removeAllObjects()
    {
        change([](List &list) { list.clear(); });
    }
    void removeObject(const Element &object, ArrayRange inRange)
    {
        change([&](List &list) { ArrayOperations::remove(list, object, inRange); });
    }
    /// Removes every equal object.
    void removeObject(const Element &object)
    {
        change([&](List &list) { list.removeAll(object); });
    }
    void removeObjectIdenticalTo(const Element &object, ArrayRange inRange) { removeObject(object, inRange); }
    void removeObjectIdenticalTo(const Element &object) { removeObject(object); }
    void removeObjectsInArray(const List &objects)
    {
        change([&](List &list) { list.removeIf([&](const Element &object) { return objects.contains(object); }); });
    }
    void removeObjectsInRange(ArrayRange range) { replaceObjectsInRange(range, {}); }
    void replaceObjectsInRange(ArrayRange range, const List &withObjectsFromArray, ArrayRange otherRange)
    {
        replaceObjectsInRange(range, ArrayOperations::slice(withObjectsFromArray, otherRange));
    }
    void replaceObjectsInRange(ArrayRange range, const List &withObjectsFromArray)
    {
        change([&](List &list) { ArrayOperations::replace(list, range, withObjectsFromArray); });
    }
    void setArray(const List &objects)
    {
        change([&](List &list) { list = objects; });
    }
    void insertObjects(const List &objects, const IndexSet &atIndexes)
    {
        change([&](List &list) { ArrayOperations::insert(list, atIndexes, objects); });
    }
    void removeObjectsAtIndexes(const IndexSet &indexes)
    {
        change([&](List &list) { ArrayOperations::remove(list, indexes); });
    }
    void replaceObjectsAtIndexes(const IndexSet &indexes, const List &withObjects)
    {
        change([&](List &list) { ArrayOperations::replace(list, indexes, withObjects); });
    }
    /// The place may also be the end: the object is then added.
    void setObject(const Element &object, qsizetype atIndexedSubscript)
    {
        change([&](List &list) {
            const bool replaces = atIndexedSubscript < list.size();
            ArrayOperations::replace(list, ArrayRange{atIndexedSubscript, replaces ? 1 : 0}, List{object});
        });
    }

    // Copying and comparing
    Array copy() const { return mutableCopy(); }
    Array mutableCopy() const { return Array(objectEnumerator()); }
    bool isEqual(const Array &other) const { return m_arr.isEqual(other.m_arr); }
    /// A plain array, or anything else, is never equal.
    template <typename Other>
    bool isEqual(const Other &) const
    {
        return false;
    }
    template <typename Other>
    bool isEqualToArray(const Other &other) const
    {
        return isEqual(other);
    }

protected:
    template <typename Reader>
    auto read(Reader &&reader) const
    {
        return m_arr.read(reader);
    }

    template <typename Writer>
    auto change(Writer &&writer)
    {
        return m_arr.change(writer);
    }

private:
    LockedCollection<List> m_arr;
};
