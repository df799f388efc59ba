#pragma once

#include "ArrayTypes.h"

#include <QDebug>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <concepts>
#include <functional>
#include <optional>
#include <random>
#include <stdexcept>

/// What the locked arrays do to the plain list behind their lock. A place or range beyond the end throws
/// std::out_of_range before anything is changed.
namespace ArrayOperations
{

inline void requirePlace(qsizetype index, qsizetype end)
{
    if (index < 0 || index >= end)
        throw std::out_of_range("index beyond the end of the array");
}

inline void requirePlaces(const IndexSet &indexes, qsizetype end)
{
    for (const qsizetype index : indexes)
        requirePlace(index, end);
}

inline void requireRange(ArrayRange range, qsizetype count)
{
    if (range.location < 0 || range.length < 0 || range.location > count || range.length > count - range.location)
        throw std::out_of_range("range beyond the end of the array");
}

inline ArrayRange whole(qsizetype count)
{
    return {0, count};
}

template <typename Element>
const Element &at(const QList<Element> &list, qsizetype index)
{
    requirePlace(index, list.size());
    return list.at(index);
}

template <typename Element>
Element &at(QList<Element> &list, qsizetype index)
{
    requirePlace(index, list.size());
    return list[index];
}

template <typename Element>
QList<Element> slice(const QList<Element> &list, ArrayRange range)
{
    requireRange(range, list.size());
    return list.sliced(range.location, range.length);
}

template <typename Element>
QList<Element> pick(const QList<Element> &list, const IndexSet &indexes)
{
    QList<Element> picked;
    for (const qsizetype index : indexes)
        picked.append(at(list, index));
    return picked;
}

template <typename Element>
std::optional<qsizetype> find(const QList<Element> &list, const Element &object, ArrayRange range)
{
    requireRange(range, list.size());
    const qsizetype found = list.indexOf(object, range.location);
    if (found < 0 || found >= range.location + range.length)
        return std::nullopt;
    return found;
}

template <typename Element>
std::optional<Element> firstCommon(const QList<Element> &list, const QList<Element> &other)
{
    const auto found = std::ranges::find_if(list, [&](const Element &object) { return other.contains(object); });
    return found == list.end() ? std::nullopt : std::optional(*found);
}

/// Calls `block(object, index, stop)` until it sets `stop`.
template <typename Element, typename Block>
void enumerate(const QList<Element> &list, EnumerationOption option, Block &&block)
{
    bool stop = false;
    for (qsizetype step = 0; step < list.size() && !stop; ++step) {
        const qsizetype index = option == EnumerationOption::Reverse ? list.size() - 1 - step : step;
        block(list.at(index), index, stop);
    }
}

/// The same for the places in `indexes` only.
template <typename Element, typename Block>
void enumerateAt(const QList<Element> &list, const IndexSet &indexes, EnumerationOption option, Block &&block)
{
    requirePlaces(indexes, list.size());
    enumerate(list, option, [&](const Element &object, qsizetype index, bool &stop) {
        if (indexes.contains(index))
            block(object, index, stop);
    });
}

/// The places among `indexes` (all, when absent) for which `test(object, index, stop)` holds.
template <typename Element, typename Test>
IndexSet passing(const QList<Element> &list, const std::optional<IndexSet> &indexes, EnumerationOption option,
                 Test &&test)
{
    if (indexes)
        requirePlaces(*indexes, list.size());
    IndexSet passed;
    enumerate(list, option, [&](const Element &object, qsizetype index, bool &stop) {
        if ((!indexes || indexes->contains(index)) && test(object, index, stop))
            passed.insert(index);
    });
    return passed;
}

/// The first such place in the direction of `option`.
template <typename Element, typename Test>
std::optional<qsizetype> firstPassing(const QList<Element> &list, const std::optional<IndexSet> &indexes,
                                      EnumerationOption option, Test &&test)
{
    if (indexes)
        requirePlaces(*indexes, list.size());
    std::optional<qsizetype> found;
    enumerate(list, option, [&](const Element &object, qsizetype index, bool &stop) {
        if ((!indexes || indexes->contains(index)) && test(object, index, stop)) {
            found = index;
            stop = true;
        }
    });
    return found;
}

/// `comparator(left, right)` is below, equal to or above 0, a number or an ordering.
template <typename Element, typename Comparator>
void sort(QList<Element> &list, Comparator &&comparator)
{
    std::ranges::stable_sort(list,
                             [&](const Element &left, const Element &right) { return comparator(left, right) < 0; });
}

template <typename Element, typename Comparator>
std::optional<qsizetype> findSorted(const QList<Element> &list, const Element &object, ArrayRange range,
                                    BinarySearchOption option, Comparator &&comparator)
{
    requireRange(range, list.size());
    const auto less = [&](const Element &left, const Element &right) { return comparator(left, right) < 0; };
    const auto begin = list.begin() + range.location;
    const auto [first, last] = std::equal_range(begin, begin + range.length, object, less);
    if (first == last)
        return option == BinarySearchOption::InsertionIndex ? std::optional(first - list.begin()) : std::nullopt;
    switch (option) {
    case BinarySearchOption::LastEqual:
        return last - 1 - list.begin();
    case BinarySearchOption::AnyEqual:
    case BinarySearchOption::FirstEqual:
    case BinarySearchOption::InsertionIndex:
        break;
    }
    return first - list.begin();
}

template <typename Element>
void insert(QList<Element> &list, qsizetype index, const QList<Element> &objects)
{
    requirePlace(index, list.size() + 1);
    for (qsizetype offset = 0; offset < objects.size(); ++offset)
        list.insert(index + offset, objects.at(offset));
}

/// Inserts the objects one after the other at the ascending `indexes`; each index counts in the list that has the
/// earlier objects already.
template <typename Element>
void insert(QList<Element> &list, const IndexSet &indexes, const QList<Element> &objects)
{
    requireRange(whole(static_cast<qsizetype>(indexes.size())), objects.size());
    qsizetype taken = 0;
    for (const qsizetype index : indexes)
        requirePlace(index, list.size() + ++taken);
    taken = 0;
    for (const qsizetype index : indexes)
        list.insert(index, objects.at(taken++));
}

template <typename Element>
void replace(QList<Element> &list, const IndexSet &indexes, const QList<Element> &objects)
{
    requireRange(whole(static_cast<qsizetype>(indexes.size())), objects.size());
    requirePlaces(indexes, list.size());
    qsizetype taken = 0;
    for (const qsizetype index : indexes)
        list[index] = objects.at(taken++);
}

template <typename Element>
void replace(QList<Element> &list, ArrayRange range, const QList<Element> &objects)
{
    requireRange(range, list.size());
    list.remove(range.location, range.length);
    insert(list, range.location, objects);
}

template <typename Element>
void remove(QList<Element> &list, const IndexSet &indexes)
{
    requirePlaces(indexes, list.size());
    for (auto index = indexes.rbegin(); index != indexes.rend(); ++index)
        list.removeAt(*index);
}

template <typename Element>
void remove(QList<Element> &list, const Element &object, ArrayRange range)
{
    requireRange(range, list.size());
    const auto begin = list.begin() + range.location;
    list.erase(std::remove(begin, begin + range.length, object), begin + range.length);
}

template <typename Element>
void apply(QList<Element> &list, const ArrayDifference<Element> &difference)
{
    remove(list, difference.removals);
    for (const auto &[index, object] : difference.insertions)
        insert(list, index, {object});
}

template <typename Element>
std::optional<Element> takeAt(QList<Element> &list, qsizetype index)
{
    return list.isEmpty() ? std::nullopt : std::optional(list.takeAt(index));
}

/// Copies the next `count` objects at most; `changes` is how often the list has been changed.
template <typename Element>
qsizetype nextBatch(const QList<Element> &list, quint64 changes, ArrayEnumerationState &state, Element *objects,
                    qsizetype count)
{
    if (state.next == 0)
        state.changesSeen = changes;
    if (state.changesSeen != changes)
        throw std::logic_error("collection changed while it was enumerated");
    const qsizetype copied = qMin(count, list.size() - state.next);
    std::copy_n(list.begin() + state.next, copied, objects);
    state.next += copied;
    return copied;
}

/// A uniformly random number below `end`, which is above 0.
inline qsizetype randomBelow(qsizetype end)
{
    thread_local std::mt19937_64 generator{std::random_device{}()};
    return std::uniform_int_distribution<qsizetype>{0, end - 1}(generator);
}

template <typename Element>
void reverse(QList<Element> &list)
{
    for (qsizetype index = 0; index < list.size() / 2; ++index)
        list.swapItemsAt(index, list.size() - 1 - index);
}

template <typename Element>
void shuffle(QList<Element> &list)
{
    for (qsizetype end = list.size(); end > 1; --end)
        list.swapItemsAt(end - 1, randomBelow(end));
}

/// A text as itself, a number in digits, anything else as QDebug shows it.
template <typename Element>
QString describe(const Element &object, const QLocale &locale = QLocale::c())
{
    if constexpr (std::convertible_to<Element, QString>)
        return object;
    else if constexpr (std::integral<Element> || std::floating_point<Element>)
        return locale.toString(object);
    else
        return QDebug::toString(object);
}

template <typename Element>
QStringList describeEach(const QList<Element> &list, const QLocale &locale = QLocale::c())
{
    QStringList texts;
    for (const Element &object : list)
        texts.append(describe(object, locale));
    return texts;
}

/// One object a line between parentheses, `indent` levels of four spaces deep.
inline QString describeLines(const QStringList &texts, qsizetype indent)
{
    const QString margin(indent * 4, QLatin1Char(' '));
    const QString inner = margin + QLatin1StringView("    ");
    const QString body = texts.isEmpty() ? QString() : inner + texts.join(QLatin1StringView(",\n") + inner) + u'\n';
    return margin + QLatin1StringView("(\n") + body + margin + u')';
}

} // namespace ArrayOperations
