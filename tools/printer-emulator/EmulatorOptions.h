#pragma once

#include "ModelIdentity.h"
#include "PrinterScript.h"

#include <QString>
#include <QStringList>
#include <variant>
#include <vector>

/// What the command line of printer-emulator asks for.
struct EmulatorOptions {
    ModelIdentity identity;
    PrinterScript script;
    enum class Bus {
        Usbfs,    ///< Emulated, for `command` and its children.
        Usbip,    ///< The kernel's own, until the printer is unplugged.
        Usbredir, ///< That of qemu's machine, until the printer is unplugged.
    };

    /// More printers of the same model, each with a serial number and a script of its own.
    struct Another {
        QString serialNumber;
        PrinterScript script;
    };
    std::vector<Another> others; ///< With `Bus::Usbfs`.

    QString framesFile;  ///< Empty: frames are not kept.
    QString joinProgram; ///< Empty: the script says what becomes of a configuration.
    Bus bus = Bus::Usbfs;
    QString socket;      ///< With `Bus::Usbredir`.
    QStringList command; ///< With `Bus::Usbfs`.

    /// What to print in place of a run: help, or what is wrong with the command line.
    struct Message {
        QString text;
        bool isError = true;
    };
    /// `arguments` begin with the program's name. Needs the application object. Reads the script file.
    static std::variant<EmulatorOptions, Message> parse(const QStringList &arguments);
};
