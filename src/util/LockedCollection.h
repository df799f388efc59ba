#pragma once

#include "Locked.h"

#include <QtGlobal>

/// A collection behind one lock, with a count of its changes by which an enumeration in batches notices them.
template <typename Collection>
class LockedCollection
{
public:
    LockedCollection() = default;
    explicit LockedCollection(const Collection &collection)
        : m_contents(Contents{collection})
    {
    }

    template <typename Reader>
    auto read(Reader &&reader) const
    {
        return m_contents.read([&](const Contents &contents) { return reader(contents.collection); });
    }

    /// The reader also gets the number of changes so far.
    template <typename Reader>
    auto readCounted(Reader &&reader) const
    {
        return m_contents.read([&](const Contents &contents) { return reader(contents.collection, contents.changes); });
    }

    template <typename Writer>
    auto change(Writer &&writer)
    {
        return m_contents.change([&](Contents &contents) {
            ++contents.changes;
            return writer(contents.collection);
        });
    }

    /// Locks this first and `other` second.
    bool isEqual(const LockedCollection &other) const
    {
        return m_contents.equals(other.m_contents, [](const Contents &ours, const Contents &theirs) {
            return ours.collection == theirs.collection;
        });
    }

private:
    struct Contents {
        Collection collection;
        quint64 changes = 0;
    };

    Locked<Contents> m_contents;
};
