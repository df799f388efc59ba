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
    /// Blocks the signals that end a program, so that `wait` receives them. Threads inherit this: call it before the
    /// first one starts.
    static void holdSignals();

    /// Starts the command with these variables added to the environment. Absent when it cannot be started; `errno` then
    /// tells why.
    static std::optional<ChildProgram> start(const QStringList &command, const std::vector<QByteArray> &variables);

    /// Waits until the program ends, and passes on to it the signals that arrive meanwhile. Returns the program's exit
    /// status, or 128 + n when signal n ended it.
    int wait();

private:
    explicit ChildProgram(pid_t pid)
        : m_pid(pid)
    {
    }

    pid_t m_pid;
};
