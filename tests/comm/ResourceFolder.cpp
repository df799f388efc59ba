#include "ResourceFolder.h"

#include "InfoList.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace
{

void write(const QString &path, const QByteArray &content)
{
    QFile file{path};
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("The test cannot write its resource folder.");
}

} // namespace

ResourceFolder::ResourceFolder()
{
    const QJsonObject information{{u"CFG"_s, cataloguePath()}, {u"Vendor"_s, u"Quillmark"_s}};
    write(m_folder.filePath(u"Info.json"_s), QJsonDocument{information}.toJson());
    InfoList::setResourceFolder(m_folder.path());
}

void ResourceFolder::writeCatalogue(const QByteArray &content) const
{
    write(cataloguePath(), content);
}

void ResourceFolder::removeCatalogue() const
{
    QFile::remove(cataloguePath());
}
