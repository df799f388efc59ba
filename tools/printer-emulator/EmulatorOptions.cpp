#include "EmulatorOptions.h"

#include "ScriptFile.h"

#include <QCommandLineParser>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// What stands in the way of using the file as a script; empty when nothing does.
QString readScript(const QString &path, PrinterScript &script)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return file.fileName() + u": "_s + file.errorString();
    ScriptFile parsed = ScriptFile::parse(file.readAll());
    script = std::move(parsed.script);
    return parsed.complaints.isEmpty() ? QString() : file.fileName() + u": "_s + parsed.complaints.join(u'\n');
}

} // namespace

std::variant<EmulatorOptions, EmulatorOptions::Message> EmulatorOptions::parse(const QStringList &arguments)
{
    const QCommandLineOption usbfs(u"usbfs"_s, u"Put the printer on an emulated usbfs."_s);
    const QCommandLineOption usbip(u"usbip"_s, u"Attach the printer to the kernel's virtual host controller."_s);
    const QCommandLineOption usbredir(
        u"usbredir"_s, u"Wait for qemu at a Unix socket, and plug the printer into its machine."_s, u"socket"_s);
    const QCommandLineOption join(u"join-command"_s,
                                  u"Ask a program to join the network: it reads the name and the password, each ended "
                                  "by a zero byte, and prints the printer's IPv4 address, or fails."_s,
                                  u"program"_s);
    const QCommandLineOption script(u"script"_s, u"What the printer does, as JSON (see README.md)."_s, u"file"_s);
    const QCommandLineOption frames(u"frames"_s, u"Append every frame received, as a line of hexadecimal."_s,
                                    u"file"_s);
    const QCommandLineOption model(u"model"_s, u"The model's name: QZ100 unless given."_s, u"name"_s);
    const QCommandLineOption serial(u"serial"_s, u"The serial number: QM0001 unless given."_s, u"number"_s);
    const QCommandLineOption vendor(u"vendor"_s, u"The vendor ID, in hexadecimal: 6A1B unless given."_s, u"ID"_s);
    const QCommandLineOption another(u"another"_s,
                                     u"One more printer of this model on the emulated usbfs, with the script of the "
                                     "first one unless it has its own. May be repeated."_s,
                                     u"serial[=script]"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Runs a program with an emulated printer on its USB bus, or puts "
                                     "the printer on the bus of a real kernel. "
                                     "Exits with the program's own status, 128 + n if signal n ended it."_s);
    parser.addOptions({usbfs, usbip, usbredir, join, script, frames, model, serial, vendor, another});
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(u"command"_s, u"The program to run, with its arguments."_s, u"-- command ..."_s);

    if (!parser.parse(arguments))
        return Message{parser.errorText()};
    if (parser.isSet(help))
        return Message{parser.helpText(), false};
    const int buses = static_cast<int>(parser.isSet(usbfs)) + static_cast<int>(parser.isSet(usbip)) +
                      static_cast<int>(parser.isSet(usbredir));
    if (buses != 1 || parser.isSet(usbfs) == parser.positionalArguments().isEmpty())
        return Message{parser.helpText()};

    EmulatorOptions options;
    if (parser.isSet(usbip))
        options.bus = Bus::Usbip;
    if (parser.isSet(usbredir))
        options.bus = Bus::Usbredir;
    options.socket = parser.value(usbredir);
    options.joinProgram = parser.value(join);
    options.command = parser.positionalArguments();
    options.framesFile = parser.value(frames);
    if (parser.isSet(model))
        options.identity.model = parser.value(model);
    if (parser.isSet(serial))
        options.identity.serialNumber = parser.value(serial);
    if (parser.isSet(vendor)) {
        bool isNumber = false;
        options.identity.vendorID = parser.value(vendor).toUShort(&isNumber, 16);
        if (!isNumber)
            return Message{u"--vendor: "_s + parser.value(vendor) + u" is no vendor ID"_s};
    }
    if (parser.isSet(script)) {
        if (const QString complaint = readScript(parser.value(script), options.script); !complaint.isEmpty())
            return Message{complaint};
    }
    for (const QString &value : parser.values(another)) {
        Another printer{value.section(u'=', 0, 0), options.script};
        const QString file = value.section(u'=', 1);
        if (const QString complaint = file.isEmpty() ? QString() : readScript(file, printer.script);
            !complaint.isEmpty())
            return Message{complaint};
        options.others.push_back(std::move(printer));
    }
    return options;
}
