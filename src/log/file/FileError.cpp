#include "FileError.h"

#include <cerrno>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

FileError FileError::ofLastCall(const QString &path)
{
    return {errno, path};
}

bool FileError::fileExists() const
{
    return number == EEXIST;
}

bool FileError::fileIsMissing() const
{
    return number == ENOENT;
}

bool FileError::isPassing() const
{
    return number == EINTR || number == EWOULDBLOCK || number == ENOLCK;
}

QString FileError::reason() const
{
    return QString::fromStdString(std::generic_category().message(number));
}

QString FileError::description() const
{
    return u"%1 (%2): %3"_s.arg(reason(), QString::number(number), path);
}
