#pragma once

#include "FileDescriptor.h"
#include "FileError.h"

#include <QByteArrayView>

/// A log file open for appending, to be written by several processes in turn. Every operation but `open` and `isOpen`
/// asks for an open file.
class LogFileHandle
{
public:
    /// An existing regular file; a symbolic link is refused. Positioned at the beginning.
    FileError open(const QString &path);
    bool isOpen() const { return m_file.isOpen(); }
    int descriptor() const { return m_file.get(); }

    FileError seekToEnd();
    /// Whether the end that `seekToEnd` found lies inside a line of another writer, which was killed while it wrote.
    bool endsInTornLine() const;
    /// At the position that `seekToEnd` found: all the bytes or none.
    FileError write(QByteArrayView bytes);
    FileError readOffset(quint64 &offset) const;
    /// Whether the file was deleted or moved away, or another one has its path by now.
    bool isGone() const;
    FileError synchronize();
    /// The handle is closed afterwards, whatever the answer.
    FileError close();

private:
    FileError error() const { return FileError::ofLastCall(m_path); }

    QString m_path;
    FileDescriptor m_file;
    off_t m_end = 0;
    /// The end of the last bytes written here: what lies between it and the end of the file is another writer's.
    off_t m_ownEnd = 0;
};
