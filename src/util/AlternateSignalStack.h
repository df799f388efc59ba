#pragma once

#include <csignal>
#include <cstddef>
#include <memory>

/// Gives the calling thread a stack of its own for signal handlers while it lives, so that a handler can run although
/// the thread's stack itself is what ran out. Destroyed on the thread that made it.
class AlternateSignalStack
{
public:
    AlternateSignalStack();
    ~AlternateSignalStack();
    AlternateSignalStack(const AlternateSignalStack &) = delete;
    AlternateSignalStack &operator=(const AlternateSignalStack &) = delete;

private:
    std::unique_ptr<std::byte[]> m_memory;
    stack_t m_before{};
};
