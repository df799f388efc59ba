#include "CtlBed.h"

#include <QDeadlineTimer>
#include <QDirIterator>
#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;

CtlBed::CtlBed()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_PRELOAD"_s, QStringLiteral(WT_GUARD ":libumockdev-preload.so.0"));
    environment.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0"_s);
    environment.insert(u"XDG_STATE_HOME"_s, m_home.filePath(u"state"_s));
    environment.insert(u"HOME"_s, m_home.path());
    if (!environment.contains(u"CUPS_SERVER"_s))
        environment.insert(u"CUPS_SERVER"_s, m_home.filePath(u"no-spooler"_s));
    if (!environment.contains(u"DBUS_SYSTEM_BUS_ADDRESS"_s))
        environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path=/nowhere"_s);
    m_program.setProcessEnvironment(environment);
    m_program.setProcessChannelMode(QProcess::MergedChannels);
}

int CtlBed::addPrinter(const PrinterScript &script, const QString &model)
{
    ModelIdentity identity;
    identity.model = model;
    identity.serialNumber = u"QM%1"_s.arg(++m_printers, 4, 10, QChar(u'0'));
    const int printer = m_bus.addPrinter(PrinterModel(identity, script));
    m_bus.plug(printer);
    return printer;
}

QString CtlBed::writeFile(const QString &name, const QByteArray &content, QFile::Permissions permissions)
{
    QFile file(m_home.filePath(name));
    if (!file.open(QFile::WriteOnly) || file.write(content) != content.size() || !file.setPermissions(permissions))
        qFatal("no file");
    return file.fileName();
}

void CtlBed::start(const QStringList &arguments)
{
    m_output.clear();
    m_program.start(QStringLiteral(WT_CTL), arguments);
}

bool CtlBed::waitFor(const QByteArray &text, int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    while (!output().contains(text)) {
        if (deadline.hasExpired() || (!m_program.waitForReadyRead(100) && m_program.state() == QProcess::NotRunning))
            return output().contains(text);
    }
    return true;
}

int CtlBed::end(int milliseconds)
{
    m_program.closeWriteChannel();
    const bool ended = m_program.waitForFinished(milliseconds);
    output();
    if (!ended) {
        m_program.kill();
        m_program.waitForFinished();
        return -1;
    }
    return m_program.exitStatus() == QProcess::NormalExit ? m_program.exitCode() : -1;
}

QByteArray CtlBed::output()
{
    return m_output += m_program.readAll();
}

QList<QJsonObject> CtlBed::objects()
{
    QList<QJsonObject> objects;
    for (const QByteArray &line : output().trimmed().split('\n'))
        objects += QJsonDocument::fromJson(line).object();
    return objects;
}

QByteArray CtlBed::written() const
{
    QByteArray all;
    QDirIterator files(m_home.filePath(u"state"_s), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QFile::ReadOnly))
            all += file.readAll();
    }
    return all;
}
