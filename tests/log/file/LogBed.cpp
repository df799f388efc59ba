#include "LogBed.h"

#include "WTLogFileManagerDefault.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

LogBed::LogBed()
    : m_standardError(dup(STDERR_FILENO))
{
    const int console = open(QFile::encodeName(m_home.filePath(u"console"_s)), O_WRONLY | O_CREAT | O_APPEND, 0600);
    dup2(console, STDERR_FILENO);
    close(console);
}

LogBed::~LogBed()
{
    fflush(stderr);
    dup2(m_standardError, STDERR_FILENO);
    close(m_standardError);
}

QStringList LogBed::names() const
{
    return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QString LogBed::leaveFile(const QString &rest, qint64 size) const
{
    QDir().mkpath(folder());
    QFile file(path(WTLogFileManagerDefault::applicationName() + u' ' + rest));
    if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
        qFatal("cannot make %s", qPrintable(file.fileName()));
    return file.fileName();
}

QStringList LogBed::lines() const
{
    QString text;
    for (const QString &name : names()) {
        QFile file(path(name));
        if (file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
    }
    QStringList lines = text.split(u'\n');
    // What follows the last line end: nothing, or a torn line.
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QString LogBed::console() const
{
    QFile file(m_home.filePath(u"console"_s));
    QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    // What an earlier bed's manager says while it prunes in the background.
    static const QRegularExpression linesWithPath(u"^.*/Logs/test/.*\n"_s, QRegularExpression::MultilineOption);
    for (const QRegularExpressionMatch &line : linesWithPath.globalMatch(text)) {
        if (!line.captured().contains(home()))
            text.remove(line.captured());
    }
    return text;
}

uint permissionsOf(const QString &path)
{
    struct stat status {
    };
    return lstat(QFile::encodeName(path), &status) == 0 ? status.st_mode & 07777U : 0U;
}
