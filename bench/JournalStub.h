#pragma once

#include <thread>

/// A stand-in for the journal where none runs: a socket in its place that takes every line and drops it. Seen by this
/// process only.
class JournalStub
{
public:
    /// Before the process has other threads.
    JournalStub();
    ~JournalStub();
    JournalStub(const JournalStub &) = delete;
    JournalStub &operator=(const JournalStub &) = delete;

    /// Whether lines reach a journal, be it this one or the machine's own.
    bool isThere() const { return m_isThere; }

private:
    void drain() const;

    bool m_isThere = false;
    int m_socket = -1;
    std::thread m_reader;
};
