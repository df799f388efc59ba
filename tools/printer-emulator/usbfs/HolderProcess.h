#pragma once

#include <string>
#include <sys/types.h>

/// A real other program, called "ipp-usb", that has a file open for as long as this object lives.
class HolderProcess
{
public:
    /// Returns once the file is open. Throws std::system_error.
    explicit HolderProcess(const std::string &path);
    ~HolderProcess();
    HolderProcess(const HolderProcess &) = delete;
    HolderProcess &operator=(const HolderProcess &) = delete;

    pid_t pid() const { return m_pid; }

private:
    pid_t m_pid = -1;
};
