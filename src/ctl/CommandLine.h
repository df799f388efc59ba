#pragma once

#include <QString>
#include <QStringList>
#include <variant>

/// What a command line asks for.
struct CommandLine {
    enum class Subcommand { Printers, Networks, Join, Check, Address, InformationPage };

    Subcommand subcommand = Subcommand::Printers;
    bool json = false;
    QStringList printers; ///< URIs.
    // The rest is for `Join`.
    QString network;
    QString passwordFile; ///< "-" is standard input; empty when none was named.
    bool stored = false;
    bool open = false;
    bool all = false;
    bool watch = false;
    bool again = false;

    /// The command line asks for no run: this is to be printed, and the program ends. An error's text never repeats
    /// what was typed as a value, which may be a password in the wrong place.
    struct Message {
        enum class Kind { Help, Version, Error };
        Kind kind = Kind::Help;
        QString text = {};
        bool json = false; ///< The command line has `--json`.
    };

    /// `arguments` begin with the program's name. Needs no application object.
    static std::variant<CommandLine, Message> parse(const QStringList &arguments);
};
