#include "ScannerLock.h"

#include "FileDescriptor.h"
#include "ModelCatalogue.h"
#include "TextFormat.h"
#include "isSafe.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <map>
#include <sys/file.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The lock file at a path; not open unless it is a regular file: another user may have put a link or a pipe there.
/// A path has one descriptor, which is opened anew when another file has taken the path.
const FileDescriptor &lockFile(const QString &path)
{
    static std::map<QString, FileDescriptor> files;
    FileDescriptor &file = files[path];
    struct stat kept {
    };
    struct stat present {
    };
    const bool isThere = file.isOpen() && fstat(file.get(), &kept) == 0 &&
                         lstat(QFile::encodeName(path).constData(), &present) == 0 && kept.st_dev == present.st_dev &&
                         kept.st_ino == present.st_ino;
    if (!isThere)
        file = FileDescriptor::ofRegularFile(path, O_RDONLY);
    return file;
}

} // namespace

QStringList ScannerLock::configuredPaths()
{
    QStringList paths;
    const auto catalogue = ModelCatalogue::readConfigured();
    if (!catalogue)
        return paths;
    const QJsonArray entries = catalogue.value().entries();
    for (const QJsonValueConstRef entry : entries) {
        const QString path = entry["scaner_locker"_L1].toString();
        if (isSafe(path))
            paths += path;
    }
    return paths;
}

bool ScannerLock::isHeld(const QStringList &paths)
{
    for (const QString &path : paths) {
        const FileDescriptor &file = lockFile(path);
        if (!file.isOpen())
            continue;
        if (flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
            std::fputs(qUtf8Printable(formatText("Printer is scaning:%@,%d\n", path, errno)), stderr);
            return true;
        }
        flock(file.get(), LOCK_UN);
    }
    return false;
}
