#include "ChildProgram.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr int signalStatus = 128;

sigset_t heldSignals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    for (const int signal : {SIGCHLD, SIGINT, SIGQUIT, SIGTERM, SIGHUP})
        ::sigaddset(&signals, signal);
    return signals;
}

/// This program's variables, with some replaced or added.
std::vector<QByteArray> environment(const std::vector<QByteArray> &variables)
{
    std::vector<QByteArray> all = variables;
    for (char **variable = environ; *variable; ++variable) {
        const QByteArray own(*variable);
        const QByteArray name = own.first(own.indexOf('=') + 1);
        if (std::ranges::none_of(variables, [&name](const QByteArray &given) { return given.startsWith(name); }))
            all.push_back(own);
    }
    return all;
}

std::vector<char *> pointers(std::vector<QByteArray> &texts)
{
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}
} // namespace

void ChildProgram::holdSignals()
{
    const sigset_t signals = heldSignals();
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

std::optional<ChildProgram> ChildProgram::start(const QStringList &command, const std::vector<QByteArray> &variables)
{
    std::vector<QByteArray> arguments;
    arguments.reserve(static_cast<std::size_t>(command.size()));
    for (const QString &argument : command)
        arguments.push_back(argument.toLocal8Bit());
    std::vector<QByteArray> allVariables = environment(variables);

    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    sigset_t none;
    ::sigemptyset(&none);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t pid = 0;
    errno = ::posix_spawnp(&pid, arguments.front().constData(), nullptr, &attributes, pointers(arguments).data(),
                           pointers(allVariables).data());
    ::posix_spawnattr_destroy(&attributes);
    return errno == 0 ? std::optional(ChildProgram(pid)) : std::nullopt;
}

int ChildProgram::wait()
{
    const sigset_t signals = heldSignals();
    for (;;) {
        siginfo_t signal{};
        ::sigwaitinfo(&signals, &signal);
        // A signal of the terminal goes to the child as well; a signal of another process came only to this one.
        if (signal.si_signo != SIGCHLD && signal.si_code <= 0)
            ::kill(m_pid, signal.si_signo);
        int status = 0;
        if (::waitpid(m_pid, &status, WNOHANG) == m_pid)
            return WIFSIGNALED(status) ? signalStatus + WTERMSIG(status) : WEXITSTATUS(status);
    }
}
