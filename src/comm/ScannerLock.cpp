#include "ScannerLock.h"

#include "ModelCatalogue.h"
#include "TextFormat.h"
#include "isSafe.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The descriptor of a regular file; -1 for anything else, such as a link or a pipe that another user put there.
int openLockFile(const QString &path)
{
    const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW);
    struct stat status {
    };
    if (descriptor < 0 || (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    close(descriptor);
    return -1;
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
        const int descriptor = openLockFile(path);
        if (descriptor < 0)
            continue;
        if (flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
            std::fputs(qUtf8Printable(formatText("Printer is scaning:%@,%d\n", path, errno)), stderr);
            return true;
        }
        flock(descriptor, LOCK_UN);
    }
    return false;
}
