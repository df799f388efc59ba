#include "CrashReport.h"

#include "InfoList.h"
#include "LocalTime.h"
#include "SignalReason.h"
#include "TextFormat.h"

#include <QFile>
#include <QSysInfo>
#include <QUuid>
#include <cerrno>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr QStringView reportTemplate = u"\n"
                                       u"[ Uncaught Exception ]\n\n"
                                       u"Name: %@, \n\n"
                                       u"Reason: %@\n\n"
                                       u"Process: %@\n\n"
                                       u"Path: %@\n\n"
                                       u"Identifier: %@\n\n"
                                       u"Version: %@\n\n"
                                       u"Date/Time: %@\n\n"
                                       u"OS Version: %@\n\n"
                                       u"Anonymous UUID: %@\n\n"
                                       u"[ Fe Symbols Start ]\n"
                                       u"%@[ Fe Symbols End ]\n\n";

QString exceptionName(const Crash &crash)
{
    return crash.signal == 0 ? crash.exceptionName : u"UncaughtExceptionHandlerSignalExceptionName"_s;
}

/// The call stack. For an exception one line for each address; for a signal in the form of a dictionary that holds the
/// addresses and the signal's number.
QString stackText(const Crash &crash)
{
    if (crash.signal == 0) {
        QString text;
        for (const QString &symbol : crash.symbols())
            text += symbol + u"\r\n"_s;
        return text;
    }
    const QString addresses = u"        \""_s + crash.symbols().join(u"\",\n        \""_s) + u"\""_s;
    return formatText(u"{\n"
                      u"    UncaughtExceptionHandlerAddressesKey =     (\n%@\n    );\n"
                      u"    UncaughtExceptionHandlerSignalKey = %d;\n"
                      u"}",
                      {addresses, crash.signal});
}

QString process()
{
    return formatText(u"%@ [%d]", {program_invocation_short_name, getpid()});
}

QString firstCommandLineArgument()
{
    QFile commandLine(u"/proc/self/cmdline"_s);
    if (!commandLine.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLocal8Bit(commandLine.readAll().split('\0').constFirst());
}

QString version()
{
    return formatText(u"%@ (%@)",
                      {InfoList::value(u"CFBundleShortVersionString"_s), InfoList::value(u"CFBundleVersion"_s)});
}

QString operatingSystem()
{
    return QSysInfo::prettyProductName() + u", "_s + QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion();
}

} // namespace

QString crashReason(const Crash &crash)
{
    return crash.signal == 0 ? crash.exceptionReason : signalReason(crash.signal);
}

QString crashReportText(const Crash &crash, std::chrono::system_clock::time_point moment)
{
    return formatText(reportTemplate,
                      {exceptionName(crash), crashReason(crash), process(), firstCommandLineArgument(),
                       InfoList::value(u"CFBundleIdentifier"_s), version(), crashReportDate(moment), operatingSystem(),
                       QUuid::createUuid().toString(QUuid::WithoutBraces), stackText(crash)});
}

QString crashReportDate(std::chrono::system_clock::time_point moment)
{
    return localTimeText(std::chrono::floor<std::chrono::seconds>(moment), "%Y-%m-%d %H:%M:%S.0%S %z");
}
