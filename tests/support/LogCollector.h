#pragma once

#include <QStringList>
#include <memory>

/// Collects what the program logs while it lives, each line as its flag and its text: "error: no header data!".
class LogCollector
{
public:
    LogCollector();
    ~LogCollector();
    LogCollector(const LogCollector &) = delete;
    LogCollector &operator=(const LogCollector &) = delete;

    /// Every line that was logged before this call.
    QStringList lines() const;
    /// The first of `expected` that the lines do not hold behind the one before it; empty when they hold all.
    QString firstMissing(const QStringList &expected) const;
    /// What has been written by now, without waiting for lines under way: tells whether a line was synchronous.
    QStringList writtenSoFar() const;
    /// Forgets the lines so far.
    void clear();

private:
    class Logger;
    std::shared_ptr<Logger> m_logger;
};
