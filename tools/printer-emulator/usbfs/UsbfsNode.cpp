#include "UsbfsNode.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace
{
constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

[[noreturn]] void fail(const char *what)
{
    throw std::system_error(errno, std::generic_category(), what);
}
} // namespace

UsbfsNode::UsbfsNode(std::filesystem::path path)
    : m_path(std::move(path))
{
    char slaveName[64];
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (m_master < 0 || ::grantpt(m_master) || ::unlockpt(m_master) ||
        ::ptsname_r(m_master, slaveName, sizeof slaveName))
        fail("pseudo-terminal");
    m_slave = ::open(slaveName, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (m_slave < 0)
        fail(slaveName);
    setReady(false);
    setPermitted(true);
    std::filesystem::create_directories(m_path.parent_path());
    std::filesystem::create_symlink(slaveName, m_path);
}

UsbfsNode::~UsbfsNode()
{
    std::error_code ignored;
    std::filesystem::remove(m_path, ignored);
    ::close(m_slave);
    ::close(m_master);
}

void UsbfsNode::setReady(bool ready)
{
    if (ready != m_ready)
        ::tcflow(m_slave, ready ? TCOON : TCOOFF);
    m_ready = ready;
}

void UsbfsNode::setPermitted(bool permitted)
{
    ::fchmod(m_slave, permitted ? ownerOnly : 0);
}
