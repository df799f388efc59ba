#include "CupsBed.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSignalSpy>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto patience = 20s;

/// The spooler refuses programs and folders that others than their owner may change.
constexpr QFile::Permissions forOwnerToChange = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                                QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

constexpr auto fileSettings = R"(ServerRoot %1/etc
ServerBin %1/bin
RequestRoot %1/spool
TempDir %1/spool/tmp
CacheDir %1/cache
StateDir %1/state
ErrorLog %1/log/error_log
AccessLog %1/log/access_log
PageLog %1/log/page_log
SystemGroup root lpadmin
FileDevice yes
)"_L1;

constexpr auto settings = R"(Listen %1/cups.sock
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
)"_L1;

/// Prints for ever, and says in the queue's name that it has begun.
constexpr auto backend = R"(#!/bin/sh
[ $# = 0 ] && { echo 'direct endless "Unknown" "Endless"'; exit 0; }
: > "%1/progress/$PRINTER"
exec sleep 600
)"_L1;

void write(const QString &path, const QString &text)
{
    QFile file{path};
    if (file.open(QIODevice::WriteOnly))
        file.write(text.toUtf8());
}

/// The spooler gives up its rights to this user before it runs a back end.
const passwd *printUser()
{
    return ::geteuid() == 0 ? ::getpwnam("lp") : ::getpwuid(::geteuid());
}

} // namespace

CupsBed::CupsBed()
{
    for (const auto &folder :
         {u"etc/ppd"_s, u"bin/backend"_s, u"spool/tmp"_s, u"cache"_s, u"state"_s, u"log"_s, u"progress"_s})
        QDir{m_folder.path()}.mkpath(folder);
    for (const auto &part : {u"cgi-bin"_s, u"daemon"_s, u"driver"_s, u"filter"_s, u"monitor"_s, u"notifier"_s})
        QFile::link(u"/usr/lib/cups/"_s + part, path(u"bin/"_s + part));
    writeSettings();
    writeBackend();

    m_spooler.start(u"/usr/sbin/cupsd"_s,
                    {u"-f"_s, u"-c"_s, path(u"etc/cupsd.conf"_s), u"-s"_s, path(u"etc/cups-files.conf"_s)});
    m_ready = waitForFile(path(u"cups.sock"_s));
    qputenv("CUPS_SERVER", path(u"cups.sock"_s).toUtf8());
}

CupsBed::~CupsBed()
{
    m_spooler.terminate();
    if (!m_spooler.waitForFinished(static_cast<int>(std::chrono::milliseconds{patience}.count())))
        m_spooler.kill();
    m_spooler.waitForFinished();
}

void CupsBed::writeSettings() const
{
    const passwd *user = printUser();
    const QString owner = u"User %1\nGroup %2\n"_s.arg(QString::fromLocal8Bit(user->pw_name)).arg(user->pw_gid);
    write(path(u"etc/cups-files.conf"_s), QString{fileSettings}.arg(m_folder.path()) + owner);
    write(path(u"etc/cupsd.conf"_s), QString{settings}.arg(m_folder.path()));
    QFile{m_folder.path()}.setPermissions(forOwnerToChange);
    for (const auto &folder : {u"spool"_s, u"spool/tmp"_s, u"cache"_s, u"state"_s, u"log"_s, u"progress"_s}) {
        if (::chown(path(folder).toLocal8Bit(), user->pw_uid, user->pw_gid) != 0)
            qWarning("The spooler may not write to \"%s\".", qPrintable(folder));
    }
}

void CupsBed::writeBackend() const
{
    const QString program = path(u"bin/backend/endless"_s);
    write(program, QString{backend}.arg(m_folder.path()));
    QFile{program}.setPermissions(forOwnerToChange);
}

bool CupsBed::addQueue(const QString &name)
{
    return run(u"lpadmin"_s, {u"-p"_s, name, u"-v"_s, u"endless:/"_s + name, u"-m"_s, u"raw"_s, u"-E"_s});
}

bool CupsBed::holdInPrint(const QString &queue)
{
    const QString job = path(u"job"_s);
    write(job, u"a page"_s);
    return run(u"lp"_s, {u"-d"_s, queue, u"-o"_s, u"raw"_s, job}) && waitForFile(path(u"progress/"_s + queue));
}

bool CupsBed::run(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool CupsBed::waitForFile(const QString &path) const
{
    QFileSystemWatcher watcher{{QFileInfo{path}.path()}};
    QSignalSpy changed{&watcher, &QFileSystemWatcher::directoryChanged};
    const QDeadlineTimer deadline{patience};
    while (!QFileInfo::exists(path)) {
        if (deadline.hasExpired() || !changed.wait(static_cast<int>(deadline.remainingTime())))
            return false;
    }
    return true;
}
