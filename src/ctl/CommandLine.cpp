#include "CommandLine.h"

#include <QCommandLineParser>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

using Message = CommandLine::Message;
using Subcommand = CommandLine::Subcommand;

constexpr auto help = R"(usage: wifitoolctl [--json] COMMAND [OPTION ...]

Puts printers that are connected by USB onto a wireless network.

  printers            list the printers that are plugged in
  networks            list the wireless networks that this computer sees
  join                tell printers a network, and wait until they have an address
  check               ask a printer whether it can be configured
  address             ask a printer for its address
  information-page    have a printer print its wireless-network page

join:
  --network NAME          the network (required)
  --password-file FILE    its password is the only line of FILE; - is standard input
  --stored                its password is the one that NetworkManager has stored
  --open                  it has no password
  --printer URI           this printer; may be repeated
  --all                   all printers that are plugged in
  --watch                 every printer that is plugged in from now on, until ended
  --again                 with --watch: also a printer that was done in this watch

check, address, information-page:
  --printer URI           this printer; may be left out when only one is plugged in

  --json                  one JSON object a line
  --help, --version

The manual page wifitoolctl(1) tells the exit status, the JSON and more.)"_L1;

struct Name {
    QLatin1StringView text;
    Subcommand subcommand;
};

constexpr std::array names{
    Name{"printers"_L1, Subcommand::Printers}, Name{"networks"_L1, Subcommand::Networks},
    Name{"join"_L1, Subcommand::Join},         Name{"check"_L1, Subcommand::Check},
    Name{"address"_L1, Subcommand::Address},   Name{"information-page"_L1, Subcommand::InformationPage},
};

/// The options of all subcommands; `Join` takes all of them, the questions to one printer the first, others none.
const QStringList flags{u"stored"_s, u"open"_s, u"all"_s, u"watch"_s, u"again"_s};
const QStringList values{u"printer"_s, u"network"_s, u"password-file"_s};

qsizetype valuesOf(Subcommand subcommand)
{
    switch (subcommand) {
    case Subcommand::Printers:
    case Subcommand::Networks:
        return 0;
    case Subcommand::Check:
    case Subcommand::Address:
    case Subcommand::InformationPage:
        return 1;
    case Subcommand::Join:
        break;
    }
    return values.size();
}

void addOptions(QCommandLineParser &parser, qsizetype valueCount)
{
    for (const auto &name : {u"json"_s, u"help"_s, u"h"_s, u"version"_s})
        parser.addOption(QCommandLineOption(name));
    for (const QString &name : values.first(valueCount))
        parser.addOption({name, {}, u"value"_s});
    for (const QString &name : flags)
        if (valueCount == values.size())
            parser.addOption(QCommandLineOption(name));
}

/// Empty for a sound command line.
QString faultOf(const CommandLine &line, const QCommandLineParser &parser)
{
    const bool isJoin = line.subcommand == Subcommand::Join;
    if (isJoin && !parser.isSet(u"network"_s))
        return u"join needs --network NAME"_s;
    const auto isRepeated = [&parser](const QString &name) { return parser.values(name).size() > 1; };
    if (isJoin && (isRepeated(u"network"_s) || isRepeated(u"password-file"_s)))
        return u"--network and --password-file may be given once"_s;
    if (std::ranges::count(std::array{!line.passwordFile.isEmpty(), line.stored, line.open}, true) > 1)
        return u"--password-file, --stored and --open exclude one another"_s;
    if (isJoin && parser.isSet(u"password-file"_s) && line.passwordFile.isEmpty())
        return u"--password-file needs the name of a file"_s;
    if (line.all && !line.printers.isEmpty())
        return u"--all and --printer exclude one another"_s;
    if (line.again && !line.watch)
        return u"--again goes with --watch"_s;
    if (!isJoin && line.printers.size() > 1)
        return u"--printer may be given once"_s;
    return {};
}

} // namespace

std::variant<CommandLine, Message> CommandLine::parse(const QStringList &arguments)
{
    // Which options there are, the subcommand tells; to find it among them, the first look takes all.
    QCommandLineParser all;
    addOptions(all, values.size());
    const bool isSound = all.parse(arguments);
    const bool json = arguments.contains(u"--json"_s);
    const auto error = [json](const QString &text) { return Message{Message::Kind::Error, text, json}; };
    if (all.isSet(u"help"_s) || all.isSet(u"h"_s))
        return Message{Message::Kind::Help, help, json};
    if (all.isSet(u"version"_s))
        return Message{Message::Kind::Version, {}, json};
    const QStringList words = all.positionalArguments();
    const auto name = std::ranges::find(names, words.value(0), &Name::text);
    if (words.isEmpty() || name == names.end())
        return error(words.isEmpty() ? u"a command is missing"_s : u"there is no such command"_s);
    if (!isSound)
        return error(all.errorText());
    if (words.size() > 1)
        return error(name->text + u" takes no words beside its options"_s);

    QCommandLineParser parser;
    addOptions(parser, valuesOf(name->subcommand));
    if (!parser.parse(arguments))
        return error(name->text + u": "_s + parser.errorText());
    CommandLine line;
    line.subcommand = name->subcommand;
    line.json = json;
    if (valuesOf(line.subcommand) > 0)
        line.printers = parser.values(u"printer"_s);
    if (line.subcommand == Subcommand::Join) {
        line.network = parser.value(u"network"_s);
        line.passwordFile = parser.value(u"password-file"_s);
        line.stored = parser.isSet(u"stored"_s);
        line.open = parser.isSet(u"open"_s);
        line.all = parser.isSet(u"all"_s);
        line.watch = parser.isSet(u"watch"_s);
        line.again = parser.isSet(u"again"_s);
    }
    const QString fault = faultOf(line, parser);
    return fault.isEmpty() ? std::variant<CommandLine, Message>(line) : error(fault);
}
