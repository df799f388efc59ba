#include "ProcessFigures.h"

#include <QDir>
#include <QFile>
#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

QStringList ProcessFigures::descriptors()
{
    QStringList targets;
    for (const QString &name : QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System)) {
        // The descriptor of the listing itself is gone by now.
        const QString target = QFile::symLinkTarget(u"/proc/self/fd/"_s + name);
        if (!target.isEmpty())
            targets += target.section(u'[', 0, 0);
    }
    targets.sort();
    return targets;
}

int ProcessFigures::threads()
{
    return int(QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
}

std::size_t ProcessFigures::heap()
{
    return mallinfo2().uordblks;
}
