/// What a run costs beyond the waits that the protocol orders and the time of the printer and the spooler: one exchange
/// beside the same bytes through bare libusb, whole runs of the wizard, and for how long the window answers nobody
/// meanwhile. Real libusb with an emulated printer that answers at once, and a real spooler. Prints Markdown tables.
#include "BareExchange.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "RunMachine.h"
#include "StallWatch.h"
#include "WTCUSBPrinter.h"
#include "WTCommand.h"
#include "WiFiConfigurationPayload.h"
#include "WizardVisit.h"
#include "startLogging.h"
#include "timesToRepeat.h"

#include <cstdio>
#include <future>

using namespace Qt::Literals::StringLiterals;

namespace
{

const std::size_t exchanges = timesToRepeat(1000), runs = timesToRepeat(100), visitsByHand = timesToRepeat(20),
                  visitsByList = timesToRepeat(5);
constexpr std::size_t runsBeforeCounting = 5;
const std::size_t allRuns = runs + runsBeforeCounting + visitsByHand + visitsByList;
constexpr int timeLimit = 5000; // Milliseconds.

void exchangeByLibrary(const QString &uri, const QByteArray &frame)
{
    std::promise<QString> fault;
    WTCUSBPrinter::IOKit_sendACLWithURI(
        uri, frame, kACLHeadSize, timeLimit,
        PrinterExchange::usualHeadCallback(PrinterCommand::wakeUp, std::make_shared<PrinterExchange::ReplyHead>()),
        [&](const std::optional<QByteArray> &, const std::optional<WTError> &error) {
            fault.set_value(error ? error->message : QString());
        });
    if (const QString text = fault.get_future().get(); !text.isEmpty())
        qFatal("%s", qPrintable(text));
}

/// The frames of a run, in order.
std::vector<QByteArray> framesOfRun()
{
    using namespace PrinterCommand;
    const auto payload = WiFiConfigurationPayload::encode(WizardVisit::networkName, WizardVisit::password);
    return {WTCommand::PJLWithCMD(wakeUp), WTCommand::PJLWithCMD(wifiCapability),
            WTCommand::PJLWithCMD(wifiConfiguration, payload.value()), WTCommand::PJLWithCMD(address)};
}

/// Milliseconds.
double median(const Samples &sorted)
{
    return sorted.percentile(0.5) / 1000;
}

void printRow(const char *name, Samples &samples)
{
    samples.sort();
    std::printf("| %s | %.2f | %.2f | %.2f |\n", name, median(samples), samples.percentile(0.9) / 1000,
                samples.percentile(0.99) / 1000);
}

void measureExchange(RunMachine &machine, BareExchange &bare)
{
    const QByteArray frame = framesOfRun().front();
    const QString uri = machine.uri();
    Samples library(exchanges), alone(exchanges);
    for (std::size_t turn = 0; turn < exchanges; ++turn) {
        library.measure([&] { exchangeByLibrary(uri, frame); });
        alone.measure([&] { bare.run(frame); });
    }
    std::printf("### One exchange\n\nMilliseconds, %zu times each in turns.\n\n"
                "| | p50 | p90 | p99 |\n|---|---|---|---|\n",
                exchanges);
    printRow("the program's library", library);
    printRow("bare libusb", alone);
    std::printf("\nRatio of the medians: %.2f\n\n", median(library) / median(alone));
}

void measureRuns(RunMachine &machine, BareExchange &bare)
{
    const auto frames = framesOfRun();
    Samples whole(runs), printer(runs);
    for (std::size_t turn = 0; turn < runs + runsBeforeCounting; ++turn) {
        WizardVisit visit(machine.screenPorts(), WizardVisit::Entry::Manual);
        visit.enter();
        if (turn < runsBeforeCounting) {
            visit.run();
            continue;
        }
        whole.measure([&] { visit.run(); });
        printer.measure([&] {
            for (const QByteArray &frame : frames)
                bare.run(frame);
        });
    }
    const auto ordered = machine.time.skipped() / int(runs + runsBeforeCounting);
    std::printf("### A run\n\nMilliseconds from the click to the last screen, %zu times, in turns with the same frames "
                "by bare libusb. The ordered pause of %lld ms after the configuration is left out.\n\n"
                "| | p50 | p90 | p99 |\n|---|---|---|---|\n",
                runs, static_cast<long long>(ordered.count()));
    printRow("whole run", whole);
    printRow("of these: the same frames by bare libusb", printer);
    printRow("of these: the spooler's answer to the busy check", machine.spooler.questions);
    std::printf("\nThe run's own cost, by the medians: %.2f ms\n\n",
                median(whole) - median(printer) - median(machine.spooler.questions));
}

void printWork(const char *how, std::size_t visits, const QMap<QString, StallWatch::Work> &work)
{
    constexpr double worthTelling = 2.0; // Milliseconds.
    int stretches = 0, stalls = 0;
    for (const StallWatch::Work &kind : work) {
        stretches += kind.stretches;
        stalls += kind.stalls;
    }
    std::printf("%s, %zu times: %d of %d stretches of work were longer than %lld ms.\n\n"
                "| longest part of the stretch | longest, ms | longer than %lld ms |\n|---|---|---|\n",
                how, visits, stalls, stretches, static_cast<long long>(StallWatch::frame.count()),
                static_cast<long long>(StallWatch::frame.count()));
    for (const auto &[name, kind] : work.asKeyValueRange()) {
        if (kind.longest > worthTelling)
            std::printf("| %s | %.1f | %d |\n", qUtf8Printable(name), kind.longest, kind.stalls);
    }
    std::puts("");
}

void measureStalls(RunMachine &machine, StallWatch &watch, const char *how, std::size_t visits,
                   WizardVisit::Entry entry)
{
    watch.clear();
    for (std::size_t turn = 0; turn < visits; ++turn) {
        WizardVisit visit(machine.screenPorts(), entry);
        watch.begin();
        visit.enter();
        visit.run();
        watch.end();
    }
    printWork(how, visits, watch.work());
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir state;
    qputenv("XDG_STATE_HOME", QFile::encodeName(state.path()));
    StallWatch watch(argc, argv);
    startLogging({});
    RunMachine machine(allRuns);
    {
        BareExchange bare(machine.identity.vendorID, machine.identity.productID);
        measureExchange(machine, bare);
        measureRuns(machine, bare);
    }
    std::printf("### How long the window does not answer\n\nFrom the start screen to the last.\n\n");
    measureStalls(machine, watch, "By hand", visitsByHand, WizardVisit::Entry::Manual);
    machine.hostWiFi.now.poweredOn = true;
    measureStalls(machine, watch, "By the list", visitsByList, WizardVisit::Entry::List);
    Samples &questions = machine.spooler.questions;
    questions.sort();
    std::printf(
        "Ordered on the main thread: the spooler's answer to the busy check, up to %.1f ms; pauses of %lld ms.\n",
        questions.percentile(1) / 1000, static_cast<long long>(machine.time.skippedOnMainThread().count()));
    return 0;
}
