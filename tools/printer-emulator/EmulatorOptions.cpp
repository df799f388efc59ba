#include "EmulatorOptions.h"

#include "ScriptFile.h"

#include <QCommandLineParser>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

std::variant<EmulatorOptions, EmulatorOptions::Message> EmulatorOptions::parse(const QStringList &arguments)
{
    const QCommandLineOption usbfs(u"usbfs"_s, u"Put the printer on an emulated usbfs."_s);
    const QCommandLineOption usbip(u"usbip"_s, u"Attach the printer to the kernel's virtual host controller."_s);
    const QCommandLineOption join(u"join-command"_s,
                                  u"Ask a program to join the network: it reads the name and the password, each ended "
                                  "by a zero byte, and prints the printer's IPv4 address, or fails."_s,
                                  u"program"_s);
    const QCommandLineOption script(u"script"_s, u"What the printer does, as JSON (see README.md)."_s, u"file"_s);
    const QCommandLineOption frames(u"frames"_s, u"Append every frame received, as a line of hexadecimal."_s,
                                    u"file"_s);
    const QCommandLineOption model(u"model"_s, u"The model's name: QZ100 unless given."_s, u"name"_s);
    const QCommandLineOption serial(u"serial"_s, u"The serial number: QM0001 unless given."_s, u"number"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Runs a program with an emulated printer on its USB bus, or puts "
                                     "the printer on the kernel's own. "
                                     "Exits with the program's own status, 128 + n if signal n ended it."_s);
    parser.addOptions({usbfs, usbip, join, script, frames, model, serial});
    const QCommandLineOption help = parser.addHelpOption();
    parser.addPositionalArgument(u"command"_s, u"The program to run, with its arguments."_s, u"-- command ..."_s);

    if (!parser.parse(arguments))
        return Message{parser.errorText()};
    if (parser.isSet(help))
        return Message{parser.helpText(), false};
    if (parser.isSet(usbfs) == parser.isSet(usbip) || parser.isSet(usbip) != parser.positionalArguments().isEmpty())
        return Message{parser.helpText()};

    EmulatorOptions options;
    options.bus = parser.isSet(usbip) ? Bus::Usbip : Bus::Usbfs;
    options.joinProgram = parser.value(join);
    options.command = parser.positionalArguments();
    options.framesFile = parser.value(frames);
    if (parser.isSet(model))
        options.identity.model = parser.value(model);
    if (parser.isSet(serial))
        options.identity.serialNumber = parser.value(serial);
    if (parser.isSet(script)) {
        QFile file(parser.value(script));
        if (!file.open(QFile::ReadOnly))
            return Message{file.fileName() + u": "_s + file.errorString()};
        ScriptFile parsed = ScriptFile::parse(file.readAll());
        if (!parsed.complaints.isEmpty())
            return Message{file.fileName() + u": "_s + parsed.complaints.join(u'\n')};
        options.script = std::move(parsed.script);
    }
    return options;
}
