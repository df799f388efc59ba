#pragma once

#include "LockedArray.h"

/// A locked array that also takes objects out at either end, reverses and shuffles. See `LockedArray` for the other
/// operations.
template <typename Element>
class BKThreadSafeArray : public LockedArray<BKThreadSafeArray<Element>, Element>
{
    using Base = LockedArray<BKThreadSafeArray<Element>, Element>;
    using List = QList<Element>;

public:
    using Base::Base;
    using Base::insertObjects;

    std::optional<Element> objectOrNilAtIndex(qsizetype index) const
    {
        return this->read([&](const List &list) {
            return index >= 0 && index < list.size() ? std::optional(list.at(index)) : std::nullopt;
        });
    }
    /// Any object, each with the same chance; absent when there is none.
    std::optional<Element> randomObject() const
    {
        return this->read([](const List &list) {
            return list.isEmpty() ? std::nullopt : std::optional(list.at(ArrayOperations::randomBelow(list.size())));
        });
    }
    void removeFirstObject() { popFirstObject(); }
    std::optional<Element> popFirstObject()
    {
        return this->change([](List &list) { return ArrayOperations::takeAt(list, 0); });
    }
    std::optional<Element> popLastObject()
    {
        return this->change([](List &list) { return ArrayOperations::takeAt(list, list.size() - 1); });
    }
    void appendObjects(const List &objects) { this->addObjectsFromArray(objects); }
    void prependObjects(const List &objects) { insertObjects(objects, 0); }
    void insertObjects(const List &objects, qsizetype atIndex)
    {
        this->change([&](List &list) { ArrayOperations::insert(list, atIndex, objects); });
    }
    void reverse()
    {
        this->change([](List &list) { ArrayOperations::reverse(list); });
    }
    void shuffle()
    {
        this->change([](List &list) { ArrayOperations::shuffle(list); });
    }
};
