#pragma once

#include <mutex>
#include <utility>

/// A value behind one plain, non-recursive lock. Every access is a function that runs while the lock is held: it must
/// not come back to the same object, or the thread waits for itself. An exception releases the lock on its way out.
template <typename Value>
class Locked
{
public:
    Locked() = default;
    explicit Locked(Value value)
        : m_value(std::move(value))
    {
    }
    Locked(const Locked &) = delete;
    Locked &operator=(const Locked &) = delete;

    template <typename Reader>
    auto read(Reader &&reader) const
    {
        const std::lock_guard lock(m_lock);
        return reader(m_value);
    }

    template <typename Writer>
    auto change(Writer &&writer)
    {
        const std::lock_guard lock(m_lock);
        return writer(m_value);
    }

    /// Locks this first and `other` second; two threads that compare the same pair in opposite directions can block
    /// each other for good. The same object equals itself without a lock.
    template <typename Comparison>
    bool equals(const Locked &other, Comparison &&comparison) const
    {
        if (this == &other)
            return true;
        return read([&](const Value &ours) {
            return other.read([&](const Value &theirs) { return comparison(ours, theirs); });
        });
    }

private:
    mutable std::mutex m_lock;
    Value m_value;
};
