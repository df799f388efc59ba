#include "PrivateMount.h"

#include <QFile>
#include <linux/capability.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

bool write(const char *path, const QByteArray &text)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// Makes the user root in a world of its own.
bool enterUserNamespace()
{
    const QByteArray user = QByteArray::number(getuid());
    return unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && write("/proc/self/uid_map", "0 " + user + " 1");
}

void giveUpPassingOverPermissions()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3]{};
    if (syscall(SYS_capget, &header, data) != 0)
        return;
    for (const unsigned capability : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH}) {
        data[0].effective &= ~(1U << capability);
        data[0].permitted &= ~(1U << capability);
    }
    syscall(SYS_capset, &header, data);
}

} // namespace

bool PrivateMount::enter()
{
    const bool isOnItsOwn = (getuid() == 0 ? unshare(CLONE_NEWNS) == 0 : enterUserNamespace()) &&
                            ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    giveUpPassingOverPermissions();
    return isOnItsOwn;
}

PrivateMount::PrivateMount(const QString &path, const char *fileSystem, const char *options)
    : m_path(QFile::encodeName(path))
    , m_isThere(::mount(fileSystem, m_path, fileSystem, 0, options) == 0)
{
}

PrivateMount::~PrivateMount()
{
    if (m_isThere)
        umount2(m_path, MNT_DETACH);
}
