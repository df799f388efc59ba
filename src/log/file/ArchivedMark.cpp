#include "ArchivedMark.h"

#include "FileError.h"
#include "LogConsole.h"

#include <QFile>
#include <QSet>
#include <atomic>
#include <cerrno>
#include <mutex>
#include <sys/xattr.h>

namespace
{

constexpr char attributeName[] = "user.quillmark.log.archived";
constexpr char archived = 0x01;

/// The paths whose marks the file system did not take. Never destroyed: a logger may still roll while the process ends.
class RememberedMarks
{
public:
    static RememberedMarks &shared()
    {
        static auto *const marks = new RememberedMarks;
        return *marks;
    }

    bool contains(const QString &path)
    {
        const std::lock_guard lock(m_mutex);
        return m_paths.contains(path);
    }

    void insert(const QString &path)
    {
        const std::lock_guard lock(m_mutex);
        m_paths.insert(path);
    }

    bool remove(const QString &path)
    {
        const std::lock_guard lock(m_mutex);
        return m_paths.remove(path);
    }

private:
    std::mutex m_mutex;
    QSet<QString> m_paths;
};

/// A file system without attributes says so at every call: only the first one is reported.
void reportFailure(const char *format, const FileError &error)
{
    static std::atomic_flag unsupportedIsKnown;
    if (error.number == ENOTSUP && unsupportedIsKnown.test_and_set())
        return;
    LogConsole::report(format, attributeName, error.path, error.reason());
}

} // namespace

bool ArchivedMark::isOn(const QString &path)
{
    char value = 0;
    const ssize_t length = lgetxattr(QFile::encodeName(path), attributeName, &value, sizeof value);
    const bool isPresent = length >= 0 || errno == ERANGE;
    if (!isPresent) {
        if (errno == ENOTSUP)
            reportFailure("WTLogFileInfo: getxattr(%@, %@): error = %@", FileError::ofLastCall(path));
        return RememberedMarks::shared().contains(path);
    }
    if (length != sizeof value || value != archived)
        putOn(path);
    return true;
}

void ArchivedMark::putOn(const QString &path)
{
    if (lsetxattr(QFile::encodeName(path), attributeName, &archived, sizeof archived, 0) == 0)
        return;
    const FileError error = FileError::ofLastCall(path);
    if (error.fileIsMissing())
        return;
    reportFailure("WTLogFileInfo: setxattr(%@, %@): error = %@", error);
    RememberedMarks::shared().insert(path);
}

void ArchivedMark::takeOff(const QString &path)
{
    forget(path);
    if (lremovexattr(QFile::encodeName(path), attributeName) == 0 || errno == ENODATA)
        return;
    reportFailure("WTLogFileInfo: removexattr(%@, %@): error = %@", FileError::ofLastCall(path));
}

void ArchivedMark::forget(const QString &path)
{
    RememberedMarks::shared().remove(path);
}

void ArchivedMark::follow(const QString &oldPath, const QString &newPath)
{
    if (RememberedMarks::shared().remove(oldPath))
        RememberedMarks::shared().insert(newPath);
}
