#pragma once

#include <QString>
#include <QStringList>
#include <array>

/// What is known of a crash at the place where it happens. For a signal it is collected without allocating memory.
struct Crash {
    static constexpr int mostAddresses = 128;

    /// The current thread, with its call stack.
    static Crash ofCurrentThread();

    /// Each return address as text, innermost first.
    QStringList symbols() const;

    /// 0: an uncaught exception.
    int signal = 0;
    /// Of an uncaught exception only.
    QString exceptionName;
    QString exceptionReason;
    std::array<void *, mostAddresses> addresses{};
    int addressCount = 0;
    qint64 systemThread = 0;
    std::array<char, 16> threadName{};
    QString queueLabel;
};
