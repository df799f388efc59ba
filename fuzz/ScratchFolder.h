#pragma once

#include <QString>
#include <QTemporaryDir>

class QByteArrayView;

/// A folder in memory that goes with its object. Files that cannot be written end the process.
class ScratchFolder
{
public:
    ScratchFolder();

    QString path() const { return m_folder.path(); }
    /// Folders in `name` are made.
    void write(const QString &name, QByteArrayView contents) const;
    /// Deletes everything in it.
    void empty() const;

private:
    QTemporaryDir m_folder;
};
