#include "ScratchFolder.h"

#include "Fuzz.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;

ScratchFolder::ScratchFolder()
    : m_folder(u"/dev/shm/wifitool-fuzz-XXXXXX"_s)
{
    require(m_folder.isValid(), "there is room for a folder");
}

void ScratchFolder::write(const QString &name, QByteArrayView contents) const
{
    // Put together by hand: filePath() takes a name that begins with a colon for an absolute one.
    QFile file(path() + u'/' + name);
    if (!file.open(QIODevice::WriteOnly)) {
        QDir().mkpath(QFileInfo(file).path());
        require(file.open(QIODevice::WriteOnly), "a file can be made");
    }
    require(file.write(contents.data(), contents.size()) == contents.size(), "a file can be written");
}

void ScratchFolder::empty() const
{
    const QDir folder(m_folder.path());
    for (const QString &name : folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        QFile::remove(path() + u'/' + name);
}
