#include "WTCommand.h"

#include "Log.h"
#include "Utf8Text.h"

#include <QFile>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace
{

/// A pipe that child processes do not inherit by themselves. Each end is closed when its file object is.
struct Pipe {
    QFile readingEnd;
    QFile writingEnd;

    bool open()
    {
        std::array<int, 2> ends{};
        return ::pipe2(ends.data(), O_CLOEXEC) == 0 &&
               readingEnd.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) &&
               writingEnd.open(ends[1], QIODevice::WriteOnly, QFileDevice::AutoCloseHandle);
    }
};

/// Starts "/bin/sh -c line" with its standard output going to the descriptor `output`.
/// @return 0, or the error number.
int startShell(QByteArray line, int output, pid_t &child)
{
    std::array<char, 8> shell{"/bin/sh"};
    std::array<char, 3> option{"-c"};
    const std::array<char *, 4> arguments{shell.data(), option.data(), line.data(), nullptr};

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    const int failure = ::posix_spawn(&child, shell.data(), &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    return failure;
}

void waitForEnd(pid_t child)
{
    while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

} // namespace

std::optional<QString> WTCommand::executeShellScript(const QString &commandLine)
{
    Pipe pipe;
    pid_t child = 0;
    const int failure = pipe.open() ? startShell(commandLine.toUtf8(), pipe.writingEnd.handle(), child) : errno;
    if (failure != 0) {
        logError("The shell cannot be started: %@", QString::fromStdString(std::generic_category().message(failure)));
        return std::nullopt;
    }
    pipe.writingEnd.close();
    waitForEnd(child);
    return utf8Text(pipe.readingEnd.readAll());
}
