#include "PasswordSource.h"

#include "FileDescriptor.h"
#include "HostWiFiPort.h"
#include "MainThread.h"
#include "NetworkRules.h"
#include "untrustedText.h"

#include <QFile>
#include <QPointer>
#include <QStringDecoder>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr mode_t anybodyElse = S_IRWXG | S_IRWXO;

PasswordAnswer refused(const QString &problem, ExitCode code = ExitCode::Usage)
{
    return {.problem = problem, .code = code};
}

/// Why a file with a password is not to be used; empty for a good one.
QString faultOf(const struct stat &status)
{
    if (!S_ISREG(status.st_mode))
        return u"the password file is no regular file; a pipe goes to standard input, with --password-file -"_s;
    if ((status.st_mode & anybodyElse) != 0)
        return u"others may use the password file; take their rights away with chmod 600"_s;
    if (status.st_uid != geteuid() && status.st_uid != 0)
        return u"the password file belongs to somebody else"_s;
    return {};
}

/// What was read, as a password that a printer takes.
PasswordAnswer judged(QByteArray bytes)
{
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    if (bytes.endsWith('\r'))
        bytes.chop(1);
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString password = decoder.decode(bytes);
    if (password.contains(u'\n'))
        return refused(u"the password has to be the only line"_s);
    if (NetworkRules::isPasswordTooLong(password))
        return refused(NetworkRules::passwordLimitText());
    if (decoder.hasError() || !NetworkRules::isVailePassword(password))
        return refused(u"the password holds a character that a printer does not take"_s);
    return {.password = password};
}

PasswordAnswer withoutEmpty(const PasswordAnswer &answer)
{
    if (answer.password && answer.password->isEmpty())
        return refused(u"the password is empty; --open says that the network has none"_s);
    return answer;
}

PasswordAnswer fromFile(const QString &path)
{
    // Without blocking, or a pipe that nobody writes to would hold the program before it can be looked at.
    const FileDescriptor file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    struct stat status {
    };
    if (file.get() < 0 || fstat(file.get(), &status) != 0)
        return refused(u"the password file cannot be opened: "_s + QString::fromLocal8Bit(std::strerror(errno)));
    if (const QString fault = faultOf(status); !fault.isEmpty())
        return refused(fault);
    QFile content;
    if (!content.open(file.get(), QFile::ReadOnly))
        return refused(u"the password file cannot be read"_s);
    constexpr qint64 mostBytes = 4096;
    return withoutEmpty(judged(content.read(mostBytes)));
}

QString storedFault(SecretStatus status)
{
    switch (status) {
    case SecretStatus::Success:
        break;
    case SecretStatus::PermissionDenied:
        return u"NetworkManager does not let you have the stored password"_s;
    case SecretStatus::PromptCancelled:
        return u"NetworkManager's question for the password was cancelled"_s;
    case SecretStatus::NotStored:
        return u"NetworkManager has no password of this network"_s;
    case SecretStatus::Unavailable:
        return u"NetworkManager cannot be asked for the stored password"_s;
    }
    return {};
}

} // namespace

PasswordSource::PasswordSource(const CommandPorts &ports, QObject *parent)
    : QObject(parent)
    , m_ports(ports)
    , m_host(ports)
{
}

void PasswordSource::fetch(const CommandLine &line, const Done &done)
{
    if (line.open)
        return done({.password = QString()});
    if (line.stored)
        return askHost(line.network, done);
    if (!line.passwordFile.isEmpty() && line.passwordFile != u"-")
        return done(fromFile(line.passwordFile));

    struct stat status {
    };
    const bool isFile = fstat(STDIN_FILENO, &status) == 0 && S_ISREG(status.st_mode);
    const QString fault = isFile ? faultOf(status) : QString();
    if (line.passwordFile.isEmpty() && !TerminalPassword::isTerminal())
        return done(refused(u"say where the password comes from: --password-file, --stored or --open"_s));
    if (!fault.isEmpty())
        return done(refused(fault));
    const bool mayBeEmpty = TerminalPassword::isTerminal();
    const QString prompt = u"Password of "_s + visibleText(line.network) + u" (empty: none): "_s;
    m_input.read(prompt, [done, mayBeEmpty](const QByteArray &bytes) {
        const PasswordAnswer answer = judged(bytes);
        done(mayBeEmpty ? answer : withoutEmpty(answer));
    });
}

void PasswordSource::askHost(const QString &network, const Done &done)
{
    m_host.whenReady([this, network, done] {
        m_ports.hostWiFi.storedPassword(network, [source = QPointer(this), done](SecretStatus status,
                                                                                 const QString &password) {
            onMainThread([source, done, status, password] {
                if (!source)
                    return;
                if (status == SecretStatus::Success)
                    done(withoutEmpty(judged(password.toUtf8())));
                else
                    done(refused(storedFault(status), status == SecretStatus::PermissionDenied ? ExitCode::NotPermitted
                                                                                               : ExitCode::NoneFound));
            });
        });
    });
}
