#pragma once

#include "PrinterScript.h"
#include "SystemTime.h"
#include "UsbfsBed.h"

#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

/// The real wifitoolctl, as a child with emulated printers on its bus and a home of its own.
class CtlBed
{
public:
    CtlBed();

    UsbfsBed &bus() { return m_bus; }
    /// Plugs in one more printer, with the serial numbers "QM0001" and so on. @return its number.
    int addPrinter(const PrinterScript &script = {}, const QString &model = QStringLiteral("QZ100"));

    /// A file in the home. @return its path.
    QString writeFile(const QString &name, const QByteArray &content, QFile::Permissions permissions);

    /// Starts wifitoolctl with these arguments. Its standard output and errors are one stream.
    void start(const QStringList &arguments);
    QProcess &program() { return m_program; }
    /// Waits until the program has written this. @return whether it did.
    bool waitFor(const QByteArray &text, int milliseconds = 20000);
    /// Ends the program's standard input and waits for its end. @return its exit status, -1 when it did not end.
    int end(int milliseconds = 60000);
    /// What it has written since its start.
    QByteArray output();
    /// Each line of that as JSON; an object that is empty stands for a line that is none.
    QList<QJsonObject> objects();
    /// All that it has left in its home.
    QByteArray written() const;

private:
    QTemporaryDir m_home;
    SystemTime m_time;
    UsbfsBed m_bus{m_time};
    int m_printers = 0;
    QProcess m_program;
    QByteArray m_output;
};
