#pragma once

#include <QByteArray>
#include <QTemporaryDir>

/// A resource folder of the test's own: the maker is "Quillmark", and the catalogue is what the test writes.
class ResourceFolder
{
public:
    ResourceFolder();

    QString cataloguePath() const { return m_folder.filePath(QStringLiteral("catalogue.json")); }
    void writeCatalogue(const QByteArray &content) const;
    void removeCatalogue() const;

private:
    QTemporaryDir m_folder;
};
