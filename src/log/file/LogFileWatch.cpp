#include "LogFileWatch.h"

#include <array>
#include <fcntl.h>
#include <string>
#include <sys/inotify.h>
#include <sys/stat.h>

namespace
{

/// Watches the file itself, whatever its path leads to by now. A file that is deleted while it is open tells so by
/// IN_ATTRIB (IN_DELETE_SELF waits for the last descriptor), which stands for any other change of its attributes, too.
FileDescriptor inotifyFor(int logFile)
{
    FileDescriptor inotify(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    const std::string path = "/proc/self/fd/" + std::to_string(logFile);
    if (inotify_add_watch(inotify.get(), path.c_str(), IN_MOVE_SELF | IN_ATTRIB) < 0)
        return {};
    return inotify;
}

bool isDeleted(int logFile)
{
    struct stat status {
    };
    return fstat(logFile, &status) == 0 && status.st_nlink == 0;
}

bool takeEvents(int inotify, int logFile)
{
    bool isGone = false;
    alignas(inotify_event) std::array<char, 1024> buffer;
    for (ssize_t length; (length = read(inotify, buffer.data(), buffer.size())) > 0;) {
        for (const char *next = buffer.data(); next < buffer.data() + length;) {
            const auto *event = reinterpret_cast<const inotify_event *>(next);
            isGone =
                isGone || (event->mask & IN_MOVE_SELF) != 0 || ((event->mask & IN_ATTRIB) != 0 && isDeleted(logFile));
            next += sizeof(inotify_event) + event->len;
        }
    }
    return isGone;
}

} // namespace

std::unique_ptr<DescriptorSource> watchLogFile(int logFile, std::shared_ptr<SerialQueue> queue,
                                               DescriptorSource::Action onGone)
{
    const auto file = std::make_shared<FileDescriptor>(fcntl(logFile, F_DUPFD_CLOEXEC, 0));
    return std::make_unique<DescriptorSource>(
        inotifyFor(logFile), [file](int inotify) { return takeEvents(inotify, file->get()); }, std::move(queue),
        std::move(onGone));
}
