#pragma once

#include "ModelIdentity.h"
#include "PrinterScript.h"

#include <QString>
#include <QStringList>
#include <variant>

/// What the command line of printer-emulator asks for.
struct EmulatorOptions {
    ModelIdentity identity;
    PrinterScript script;
    QString framesFile; ///< Empty: frames are not kept.
    QStringList command;

    /// The command line does not ask for a run: print this and leave.
    struct Message {
        QString text;
        bool isError = true;
    };
    /// `arguments` begin with the program's name. Needs the application object. Reads the script file.
    static std::variant<EmulatorOptions, Message> parse(const QStringList &arguments);
};
