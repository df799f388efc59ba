#pragma once

#include <QString>

/// A small file system of one test process, seen by it and its children only, there until the object goes.
class PrivateMount
{
public:
    /// At the start of the process, while it has one thread: gives it mounts of its own, and takes from root the right
    /// to pass over permissions. False when the machine does not let this user mount.
    static bool enter();

    PrivateMount(const QString &path, const char *fileSystem, const char *options);
    ~PrivateMount();
    PrivateMount(const PrivateMount &) = delete;
    PrivateMount &operator=(const PrivateMount &) = delete;

    bool isThere() const { return m_isThere; }

private:
    const QByteArray m_path;
    const bool m_isThere;
};
