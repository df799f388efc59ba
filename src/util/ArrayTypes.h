#pragma once

#include <QtGlobal>
#include <map>
#include <set>

/// `length` places from `location` on.
struct ArrayRange {
    qsizetype location = 0;
    qsizetype length = 0;
};

/// Ascending places of an array, each once.
using IndexSet = std::set<qsizetype>;

enum class EnumerationOption { Forward, Reverse };

/// Every sort keeps the order of equal elements, whichever is asked for.
enum class SortOption { None, Stable };

/// What a search in a sorted range answers where several elements, or none, are equal.
enum class BinarySearchOption { AnyEqual, FirstEqual, LastEqual, InsertionIndex };

/// The step from one array to another: first `removals` (places in the old array) go, then `insertions` come, each at
/// its place in the new array.
template <typename Element>
struct ArrayDifference {
    IndexSet removals;
    std::map<qsizetype, Element> insertions;
};

/// How far an enumeration in batches has come.
struct ArrayEnumerationState {
    qsizetype next = 0;
    quint64 changesSeen = 0;
};
