#include "HolderProcess.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace
{
/// In the child, where only system calls are safe: the parent has other threads.
[[noreturn]] void holdForever(const char *path, int ready)
{
    ::prctl(PR_SET_NAME, "ipp-usb");
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::dup2(ready, 0);
    ::close_range(1, ~0U, 0);
    if (::syscall(SYS_openat, AT_FDCWD, path, O_RDWR | O_NOCTTY) >= 0)
        ::syscall(SYS_write, 0, "", 1);
    ::close(0);
    for (;;)
        ::pause();
}
} // namespace

HolderProcess::HolderProcess(const std::string &path)
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC))
        throw std::system_error(errno, std::generic_category(), "pipe");
    m_pid = ::fork();
    if (m_pid == 0)
        holdForever(path.c_str(), ends[1]);
    ::close(ends[1]);
    char byte = 0;
    const bool ready = m_pid > 0 && ::read(ends[0], &byte, 1) == 1;
    ::close(ends[0]);
    if (!ready)
        throw std::system_error(EIO, std::generic_category(), path);
}

HolderProcess::~HolderProcess()
{
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
}
