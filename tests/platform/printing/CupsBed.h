#pragma once

#include <QProcess>
#include <QTemporaryDir>

/// A real print spooler of the test's own, on a private socket, with its queues in a folder that goes with it. While it
/// lives, libcups and the command-line tools talk to it.
class CupsBed
{
public:
    CupsBed();
    ~CupsBed();

    /// Whether the spooler listens. Without it the rest means nothing.
    bool isReady() const { return m_ready; }

    /// @return whether the queue exists now.
    bool addQueue(const QString &name);
    /// Gives the queue a job that prints without end. @return whether its back end has begun to print.
    bool holdInPrint(const QString &queue);

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    void writeSettings() const;
    void writeBackend() const;
    bool run(const QString &program, const QStringList &arguments) const;
    bool waitForFile(const QString &path) const;

    QTemporaryDir m_folder;
    QProcess m_spooler;
    bool m_ready = false;
};
