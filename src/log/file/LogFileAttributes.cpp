#include "LogFileAttributes.h"

#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

QDateTime dateTime(const statx_timestamp &stamp)
{
    constexpr qint64 millisecondsPerSecond = 1000, nanosecondsPerMillisecond = 1000000;
    return QDateTime::fromMSecsSinceEpoch(stamp.tv_sec * millisecondsPerSecond +
                                          stamp.tv_nsec / nanosecondsPerMillisecond);
}

LogFileAttributes::Type typeOfMode(mode_t mode)
{
    if (S_ISREG(mode))
        return LogFileAttributes::Type::Regular;
    return S_ISLNK(mode) ? LogFileAttributes::Type::SymbolicLink : LogFileAttributes::Type::Unknown;
}

QString nameOf(LogFileAttributes::Type type)
{
    switch (type) {
    case LogFileAttributes::Type::Unknown:
        return u"unknown"_s;
    case LogFileAttributes::Type::Regular:
        return u"regular"_s;
    case LogFileAttributes::Type::SymbolicLink:
        return u"symbolic link"_s;
    }
    return {};
}

} // namespace

QString LogFileAttributes::description() const
{
    return u"{type = %1, size = %2}"_s.arg(nameOf(type), QString::number(size));
}

FileError readLogFileAttributes(const QString &path, LogFileAttributes &attributes)
{
    struct statx found {
    };
    if (statx(AT_FDCWD, QFile::encodeName(path), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME, &found) != 0)
        return FileError::ofLastCall(path);
    attributes.type = typeOfMode(found.stx_mode);
    attributes.size = found.stx_size;
    attributes.modificationDate = dateTime(found.stx_mtime);
    attributes.creationDate = found.stx_mask & STATX_BTIME ? dateTime(found.stx_btime) : attributes.modificationDate;
    return {};
}
