// Stands in front of umockdev's wrapper of open(), in the test program or, for a child, as a preloaded library. It
// mends three things:
// - umockdev has 50 places for paths below /dev that were opened, and never frees that of an open that failed. So only
//   emulated nodes that exist go to umockdev; everything else goes straight to the kernel.
//  - Root may open everything. A node without mode bits for its owner is refused to root as well.
// - A session leader that opens a node would get the pseudo-terminal behind it as its controlling terminal, and would
//   be killed by the hang-up at unplug.
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{
enum class Node { Foreign, Refused, Emulated };

Node nodeAt(const char *path)
{
    const char *root = std::getenv("UMOCKDEV_DIR");
    struct stat status {
    };
    // The system call, since stat() is wrapped as well.
    if (!root || ::syscall(SYS_newfstatat, AT_FDCWD, (root + std::string(path)).c_str(), &status, 0) != 0)
        return Node::Foreign;
    return status.st_mode & (S_IRUSR | S_IWUSR) ? Node::Emulated : Node::Refused;
}

int guarded(const char *wrapped, const char *path, int flags, mode_t mode)
{
    if (std::strncmp(path, "/dev/", 5) == 0) {
        switch (nodeAt(path)) {
        case Node::Foreign:
            return static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path, flags, mode));
        case Node::Refused:
            errno = EACCES;
            return -1;
        case Node::Emulated:
            flags |= O_NOCTTY;
        }
    }
    using Open = int (*)(const char *, int, ...);
    return reinterpret_cast<Open>(::dlsym(RTLD_NEXT, wrapped))(path, flags, mode);
}
} // namespace

// The plain name, and the name that a program built with _FORTIFY_SOURCE calls.
#define WT_GUARD(name, fortified)                                                                                      \
    extern "C" __attribute__((visibility("default"))) int name(const char *path, int flags, ...)                       \
    {                                                                                                                  \
        mode_t mode = 0;                                                                                               \
        if (flags & (O_CREAT | O_TMPFILE)) {                                                                           \
            va_list rest;                                                                                              \
            va_start(rest, flags);                                                                                     \
            mode = va_arg(rest, mode_t);                                                                               \
            va_end(rest);                                                                                              \
        }                                                                                                              \
        return guarded(#name, path, flags, mode);                                                                      \
    }                                                                                                                  \
    extern "C" __attribute__((visibility("default"))) int fortified(const char *path, int flags)                       \
    {                                                                                                                  \
        return guarded(#name, path, flags, 0);                                                                         \
    }

WT_GUARD(open, __open_2)
WT_GUARD(open64, __open64_2)
