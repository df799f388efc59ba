#pragma once

#include <QByteArray>
#include <QStringList>
#include <optional>
#include <sys/types.h>
#include <vector>

/// The program that runs with the emulated printer, as this program's child.
class ChildProgram
{
public:
    /// Keeps the signals that end a program for `wait`, in every thread that starts afterwards; before the first one.
    static void holdSignals();

    /// Starts the command with these variables added to the environment. Absent when it cannot be started; then `errno`
    /// tells why.
    static std::optional<ChildProgram> start(const QStringList &command, const std::vector<QByteArray> &variables);

    /// Waits for its end and hands it the signals that arrive meanwhile. Returns its exit status, 128 + n for signal n.
    int wait();

private:
    explicit ChildProgram(pid_t pid)
        : m_pid(pid)
    {
    }

    pid_t m_pid;
};
