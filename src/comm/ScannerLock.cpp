#include "ScannerLock.h"

#include "ModelCatalogue.h"
#include "TextFormat.h"
#include "isSafe.h"

#include <QFile>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>

using namespace Qt::Literals::StringLiterals;

QStringList ScannerLock::configuredPaths()
{
    QStringList paths;
    const auto catalogue = ModelCatalogue::readConfigured();
    if (!catalogue)
        return paths;
    for (const QJsonValue &entry : catalogue.value().entries()) {
        const QString path = entry["scaner_locker"_L1].toString();
        if (isSafe(path))
            paths += path;
    }
    return paths;
}

bool ScannerLock::isHeld(const QStringList &paths)
{
    for (const QString &path : paths) {
        if (!QFile::exists(path))
            continue;
        const int descriptor = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
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
