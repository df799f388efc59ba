/// Many printers at once: wifitoolctl as it is shipped, over real libusb, with emulated printers on its bus. Prints
/// Markdown tables. With "--smoke" only so much as shows that it works. Ends with 1 when a printer that should have
/// joined did not.
#include "CtlBed.h"
#include "EmulatedCommand.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <optional>
#include <thread>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace
{

const QStringList joinAll{u"join"_s, u"--network"_s, u"Quill House"_s, u"--open"_s, u"--json"_s};

/// The emulated bus ends the program when its news come faster than they are read.
constexpr auto betweenPlugs = 20ms;

bool allWell = true;

/// The printers take between 2.9 and 1 s to join, the first one longest, and half a second more for an address.
PrinterScript scriptOf(int printer)
{
    constexpr int kinds = 20;
    PrinterScript script;
    script.joinTime = 2900ms - printer % kinds * 100ms;
    script.addressTime = 500ms;
    return script;
}

struct Figures {
    qint64 descriptors = 0, threads = 0, peak = 0, resident = 0; ///< Memory in KiB.
};

Figures figuresOf(qint64 process)
{
    const QString folder = u"/proc/%1/"_s.arg(process);
    QFile status(folder + u"status"_s);
    Figures figures;
    if (!status.open(QFile::ReadOnly))
        return figures;
    const QByteArray text = status.readAll();
    const auto number = [&text](QByteArrayView key) {
        const qsizetype begin = text.indexOf(key) + key.size();
        return text.mid(begin, text.indexOf('\n', begin) - begin).trimmed().split(' ').front().toLongLong();
    };
    figures.peak = number("VmHWM:");
    figures.resident = number("VmRSS:");
    figures.threads = number("Threads:");
    figures.descriptors = qint64(QDir(folder + u"fd"_s).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size());
    return figures;
}

/// Milliseconds of each printer that joined.
std::vector<double> joined(CtlBed &bed)
{
    std::vector<double> times;
    for (const QJsonObject &object : bed.objects()) {
        if (object[u"event"_s] == u"result"_s && object[u"result"_s] == u"joined"_s)
            times.push_back(object[u"milliseconds"_s].toDouble());
    }
    return times;
}

void expectJoined(CtlBed &bed, std::size_t count)
{
    if (joined(bed).size() != count) {
        std::printf("%zu joined, not %zu:\n%s\n", joined(bed).size(), count, bed.output().constData());
        allWell = false;
    }
}

double slowest(CtlBed &bed)
{
    const auto times = joined(bed);
    return times.empty() ? 0 : *std::ranges::max_element(times);
}

/// @param alone what the first printer alone took. @return what these took.
double measureTogether(int count, std::optional<double> alone)
{
    CtlBed bed;
    for (int printer = 0; printer < count; ++printer)
        bed.addPrinter(scriptOf(printer));
    QElapsedTimer clock;
    clock.start();
    bed.start(joinAll + QStringList{u"--all"_s});
    Figures most;
    while (!bed.waitFor("\"summary\"", 50) && bed.program().state() != QProcess::NotRunning) {
        const Figures now = figuresOf(bed.program().processId());
        most.peak = std::max(most.peak, now.peak);
        most.threads = std::max(most.threads, now.threads);
        most.descriptors = std::max(most.descriptors, now.descriptors);
    }
    bed.end();
    const double whole = double(clock.elapsed());
    expectJoined(bed, std::size_t(count));
    std::printf("| %d | %.0f | %.0f | %.2f | %lld | %lld | %.1f |\n", count, whole, slowest(bed),
                whole / alone.value_or(whole), most.threads, most.descriptors, double(most.peak) / 1024);
    std::fflush(stdout);
    return whole;
}

/// @param spoil what is wrong with a printer; it changes the script of one that would join.
void measureBeside(const char *what, int count, void (*spoil)(PrinterScript &))
{
    CtlBed bed;
    for (int printer = 0; printer < count; ++printer) {
        PrinterScript script = scriptOf(printer);
        if (printer == count / 2)
            spoil(script);
        bed.addPrinter(script);
    }
    bed.start(joinAll + QStringList{u"--all"_s});
    const int others = count - 1;
    for (int wait = 0; joined(bed).size() < std::size_t(others) && wait < 300; ++wait)
        bed.waitFor("\"summary\"", 100);
    kill(pid_t(bed.program().processId()), SIGTERM);
    bed.end();
    expectJoined(bed, std::size_t(others));
    std::printf("| %s | %zu of %d | %.0f |\n", what, joined(bed).size(), others, slowest(bed));
    std::fflush(stdout);
}

void printRound(int joins, const Figures &figures)
{
    std::printf("| %d | %lld | %lld | %.1f |\n", joins, figures.descriptors, figures.threads,
                double(figures.resident) / 1024);
    std::fflush(stdout);
}

/// One process joins the same printers again and again; in the end it may not have more than after the first round.
void measureLastingly(int printers, int rounds)
{
    CtlBed bed;
    for (int printer = 0; printer < printers; ++printer)
        bed.addPrinter();
    bed.start(joinAll + QStringList{u"--watch"_s, u"--again"_s});
    Figures first;
    for (int round = 1; round <= rounds; ++round) {
        for (int wait = 0; joined(bed).size() < std::size_t(printers) * round && wait < 600; ++wait)
            bed.waitFor("\"summary\"", 100);
        for (int printer = 0; printer < printers; ++printer) {
            bed.bus().unplug(printer);
            std::this_thread::sleep_for(betweenPlugs);
        }
        // The last threads of the sends end, and the bus has told of everything.
        bed.waitFor("\"summary\"", 500);
        const Figures now = figuresOf(bed.program().processId());
        if (round == 1)
            first = now;
        if (round == 1 || round == rounds || round == rounds / 2)
            printRound(round * printers, now);
        allWell = allWell && (round < rounds || (now.descriptors <= first.descriptors && now.threads <= first.threads));
        for (int printer = 0; round < rounds && printer < printers; ++printer) {
            bed.bus().plug(printer);
            std::this_thread::sleep_for(betweenPlugs);
        }
    }
    kill(pid_t(bed.program().processId()), SIGTERM);
    bed.end();
    expectJoined(bed, std::size_t(printers) * std::size_t(rounds));
}

void measure(bool isSmoke)
{
    std::puts(
        "### All at once\n\nMilliseconds from the start of the program to its end; the slowest run among them; and the "
        "first beside that of the slowest printer alone.\n\n"
        "| printers | whole | slowest run | ratio | threads | descriptors | memory at its highest, MiB |\n"
        "|---|---|---|---|---|---|---|");
    std::optional<double> alone;
    for (const int count : isSmoke ? std::vector{2} : std::vector{1, 5, 20, 50}) {
        const double whole = measureTogether(count, alone);
        alone = alone.value_or(whole);
    }

    std::puts(
        "\n### Beside one that fails\n\n| one of them | the others joined | slowest of these, ms |\n|---|---|---|");
    constexpr int count = 20;
    if (!isSmoke) {
        measureBeside("is pulled while it joins", count, [](PrinterScript &script) {
            script.events.push_back({BusEvent::Action::Unplug, BusEvent::Cause{EmulatedCommand::Configuration}, 100ms});
        });
        measureBeside("may not be used", count, [](PrinterScript &script) {
            script.events.push_back({BusEvent::Action::Deny, std::nullopt, 0ms});
        });
        measureBeside("refuses", count, [](PrinterScript &script) { script.configurationResult = 0; });
        measureBeside("stalls", count, [](PrinterScript &script) {
            PrinterFault fault;
            fault.command = EmulatedCommand::Configuration;
            fault.stallIn = true;
            script.faults.push_back(fault);
        });
        measureBeside("never answers", count, [](PrinterScript &script) {
            PrinterFault fault;
            fault.command = EmulatedCommand::Configuration;
            fault.silent = true;
            script.faults.push_back(fault);
        });
    }

    std::puts(
        "\n### A thousand joins of one process\n\nWhat it has between two rounds, when no printer is plugged in.\n\n"
        "| joins | descriptors | threads | memory, MiB |\n|---|---|---|---|");
    if (isSmoke)
        measureLastingly(2, 1);
    else
        measureLastingly(50, 20);
}

} // namespace

int main(int argc, char *argv[])
{
    measure(argc == 2 && QByteArrayView(argv[1]) == "--smoke");
    std::puts(allWell ? "\nAll joined that should have." : "\nNOT all is well.");
    return allWell ? 0 : 1;
}
