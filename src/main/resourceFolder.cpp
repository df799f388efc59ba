#include "resourceFolder.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

QString resourceFolder()
{
    const QFileInfo program(QFileInfo(u"/proc/self/exe"_s).canonicalFilePath());
    return QDir::cleanPath(program.path() + u"/../share/wifitool"_s);
}
