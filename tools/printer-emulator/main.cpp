#include "ChildProgram.h"
#include "EmulatorOptions.h"
#include "JoinProgram.h"
#include "RemoteBus.h"
#include "SystemTime.h"
#include "UsbfsBed.h"
#include "UsbipLine.h"
#include "UsbredirLine.h"

#include <QCoreApplication>
#include <QFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// The same as those of env(1) and timeout(1).
enum ExitStatus { EmulatorFailed = 125, NotExecutable = 126, NotFound = 127 };

void complain(const QString &text)
{
    std::fprintf(stderr, "printer-emulator: %s\n", qPrintable(text));
}

/// Writes the frame to the file, sound or not, and complains of what is wrong with it.
void keep(QFile &file, const ReceivedFrame &frame)
{
    if (file.isOpen()) {
        file.write(frame.bytes.toHex().toUpper() + '\n');
        file.flush();
    }
    if (!frame.isSound())
        complain(u"frame %1 is wrong: %2"_s.arg(frame.command, 4, 16, QLatin1Char('0')).arg(frame.verdict()));
}

/// The variables that bring the emulated bus into a program. The guard stands in front of umockdev's own library. The
/// runtime of AddressSanitizer, if the program has it, would refuse to come behind them.
std::vector<QByteArray> childVariables()
{
    const QByteArray guard =
        QFile::encodeName(QCoreApplication::applicationDirPath()) + "/libprinter-emulator-guard.so";
    const auto extended = [](const char *name, const QByteArray &value) {
        const QByteArray present = qgetenv(name);
        return QByteArray(name) + '=' + value + (present.isEmpty() ? present : ':' + present);
    };
    return {extended("LD_PRELOAD", guard + ":libumockdev-preload.so.0"),
            extended("ASAN_OPTIONS", "verify_asan_link_order=0")};
}

int runOnUsbfs(const EmulatorOptions &options, PrinterModel printer, QFile &frames)
{
    ChildProgram::holdSignals();
    SystemTime time;
    UsbfsBed bed(time);
    bed.onFrame([&frames](int, const ReceivedFrame &frame) { keep(frames, frame); });
    bed.addPrinter(std::move(printer));
    for (const auto &[serialNumber, script] : options.others) {
        ModelIdentity identity = options.identity;
        identity.serialNumber = serialNumber;
        const int number = bed.addPrinter(PrinterModel(identity, script));
        if (script.plugged)
            bed.plug(number);
    }
    if (options.script.plugged)
        bed.plug();

    std::optional<ChildProgram> child = ChildProgram::start(options.command, childVariables());
    if (!child) {
        const int reason = errno;
        complain(options.command.front() + u": "_s + QString::fromLocal8Bit(std::strerror(reason)));
        return reason == ENOENT ? NotFound : NotExecutable;
    }
    return child->wait();
}

int runOnLine(RemoteLine &&line, PrinterModel printer, QFile &frames)
{
    RemoteBus(std::move(printer), line, [&frames](const ReceivedFrame &frame) { keep(frames, frame); }).run();
    return 0;
}

int run(const EmulatorOptions &options)
{
    QFile frames(options.framesFile);
    if (!options.framesFile.isEmpty()) {
        // For the owner only: the frames hold the network's password.
        if (!frames.open(QFile::Append, QFile::ReadOwner | QFile::WriteOwner)) {
            complain(frames.fileName() + u": "_s + frames.errorString());
            return EmulatorFailed;
        }
    }
    PrinterModel printer(options.identity, options.script);
    if (!options.joinProgram.isEmpty())
        printer.setJoin(JoinProgram(options.joinProgram));
    switch (options.bus) {
    case EmulatorOptions::Bus::Usbfs:
        return runOnUsbfs(options, std::move(printer), frames);
    case EmulatorOptions::Bus::Usbip:
        return runOnLine(UsbipLine(), std::move(printer), frames);
    case EmulatorOptions::Bus::Usbredir:
        return runOnLine(UsbredirLine(QFile::encodeName(options.socket)), std::move(printer), frames);
    }
    Q_UNREACHABLE();
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const auto parsed = EmulatorOptions::parse(QCoreApplication::arguments());
    if (const auto *message = std::get_if<EmulatorOptions::Message>(&parsed)) {
        std::fputs(qPrintable(message->text + u'\n'), message->isError ? stderr : stdout);
        return message->isError ? EmulatorFailed : 0;
    }
    try {
        return run(std::get<EmulatorOptions>(parsed));
    } catch (const std::exception &failure) {
        complain(QString::fromLocal8Bit(failure.what()));
        return EmulatorFailed;
    }
}
