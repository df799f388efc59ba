#include "FaultMatrix.h"

#include "EmulatedCommand.h"

#include <array>
#include <functional>

using namespace std::chrono_literals;
using namespace EmulatedCommand;

namespace
{

using enum Ending;

/// How a run ends for each FaultPlace; absent where the fault cannot happen.
using Endings = std::array<std::optional<Ending>, 6>;

/// One row of the matrix: what the printer does, and where it leads at each place.
struct FaultRow {
    const char *name;
    PrinterFault fault;
    /// What happens on the bus as soon as the preceding frame has arrived.
    std::vector<BusEvent> between;
    Endings endings;
    PrinterScript::PulledPlug pulledPlug = PrinterScript::PulledPlug::AtOnce;
};

// The endings in the order of FaultPlace.

/// The printer is unplugged or taken by another program and stays so. After a lost wake-up it is the capability query
/// that fails.
constexpr Endings lost{Unsupported, Unsupported, Unsupported, Failed, Failed, Failed};
/// One command gets no answer, the next ones do. A run does without the answer to a wake-up, and asks for an address
/// again.
constexpr Endings unanswered{Complete, Complete, Unsupported, ConfigFailed, Complete, Failed};
constexpr Endings harmless{Complete, Complete, Complete, Complete, Complete, Complete};
/// The late answer is dropped, unless the command that waits for an answer is the same one again. But a printer answers
/// in order: if the wake-up's answer takes too long for that, so does the capability query's behind it.
constexpr Endings late{Complete, Unsupported, Unsupported, Complete, Complete, Failed};
/// The printer answers with an unknown result code. Configuration and capability query count that as a failure; the
/// other commands do not look at it.
constexpr Endings unknown{Complete, Complete, Unsupported, ConfigFailed, Complete, Complete};
/// The reply ends after its header. Only the address query needs more.
constexpr Endings withoutAddress{Complete, Complete, Complete, Complete, Complete, Failed};
constexpr Endings tooShortAddress{Complete, Complete, Complete, Complete, Unanswered, Unanswered};
/// The printer is lost between two frames. Only before an address query does the run pause long enough for that;
/// elsewhere the printer is lost during the exchange before, which then fails.
constexpr Endings lostBefore{Unsupported, Unsupported, Unsupported, Unsupported, Failed, Failed};
constexpr auto none = std::nullopt;
constexpr Endings harmlessInPause{none, Complete, none, none, Complete, Complete};

constexpr qsizetype insideFrame = 20;
constexpr qsizetype insideHeader = 8;
/// Longer than the time-out of every command but the configuration, which may take three minutes.
constexpr auto lateAnswer = 70s;

std::vector<FaultRow> rows()
{
    using enum BusEvent::Action;
    using enum PrinterScript::PulledPlug;
    return {
        // Faults while the printer receives the frame.
        {"takes nothing", {.acceptOnly = 0}, {}, unanswered},
        {"takes half a frame", {.acceptOnly = insideFrame}, {}, unanswered},
        {"takes its time", {.acceptDelay = 4s}, {}, harmless},
        {"stalls", {.stallOut = true}, {}, unanswered},
        {"unplugged in the frame", {.unplugOut = insideFrame}, {}, lost},
        // Faults in what the printer replies.
        {"silent", {.silent = true}, {}, unanswered},
        {"answers late", {.delay = lateAnswer}, {}, late},
        {"answers after the wake-up's time", {.delay = 9s}, {}, harmless},
        {"answers across the wake-up's end", {.delay = 4s, .slices = {7, 3}, .sliceDelay = 4s}, {}, harmless},
        {"answers late in slow pieces", {.delay = 40s, .slices = {3, 4, 9}, .sliceDelay = 4s}, {}, harmless},
        {"wrong header", {.echo = 0xFF82}, {}, unanswered},
        {"unknown result", {.result = 0x1234}, {}, unknown},
        {"wrong length", {.lengthField = 0xFFFF}, {}, withoutAddress},
        {"no data", {.noData = true}, {}, withoutAddress},
        {"garbage as data", {.data = QByteArray(64, '\xFE')}, {}, withoutAddress},
        {"data too short", {.data = "192.168.1.7"}, {}, tooShortAddress},
        // Faults while the computer receives the reply.
        {"stalls the reply", {.stallIn = true}, {}, unanswered},
        {"short header", {.cutAt = insideHeader}, {}, unanswered},
        {"stalls in the header", {.cutAt = insideHeader, .stallIn = true}, {}, unanswered},
        {"unplugged in the header", {.unplugIn = insideHeader}, {}, lost},
        {"unplugged while it is waited for", {.delay = 3s, .unplugIn = 0}, {}, lost},
        {"unplugged, bus errors first", {.delay = 3s, .unplugIn = 0}, {}, lost, BusErrors},
        {"unplugged, stalls first", {.delay = 3s, .unplugIn = insideHeader}, {}, lost, Stalls},
        {"unplugged in the frame, bus errors first", {.unplugOut = insideFrame}, {}, lost, BusErrors},
        {"garbage before", {.garbage = "garbage"}, {}, unanswered},
        {"garbage behind", {.trailingGarbage = "garbage"}, {}, harmless},
        {"in small pieces", {.slices = {0, 1, 0, 7, 3}}, {}, harmless},
        {"in slow pieces", {.slices = {4, 4, 4}, .sliceDelay = 1s}, {}, harmless},
        // Faults between two frames.
        {"unplugged", {}, {{.action = Unplug}}, lostBefore},
        {"unplugged and back",
         {},
         {{.action = Unplug, .delay = 500ms}, {.action = Plug, .delay = 1s}},
         harmlessInPause},
        {"held", {}, {{.action = Hold}}, lost},
        {"held for a moment", {}, {{.action = Hold}, {.action = Release, .delay = 500ms}}, harmless},
        {"not permitted", {}, {{.action = Deny}}, lost},
    };
}

struct Place {
    FaultPlace place;
    const char *name;
    quint16 command;
    int attempts;
};

constexpr std::array places{
    Place{FaultPlace::InformationPage, "information page", InformationPage, 1},
    Place{FaultPlace::WakeUp, "wake-up", WakeUp, 1},
    Place{FaultPlace::Capability, "capability", Capability, 1},
    Place{FaultPlace::Configuration, "configuration", Configuration, 3},
    Place{FaultPlace::Address, "address", Address, 6},
    Place{FaultPlace::LastAddress, "address", Address, 1},
};

constexpr int lastQuery = 7;

/// One sending of a command: which command it is, and the first, second or later one of its kind.
using Occurrence = BusEvent::Cause;

Occurrence occurrenceAt(const Place &place, int attempt)
{
    return {place.command, place.place == FaultPlace::LastAddress ? lastQuery : attempt};
}

/// The frame that arrives just before; absent for the first one.
std::optional<Occurrence> before(FaultPlace place, const Occurrence &step)
{
    switch (place) {
    case FaultPlace::WakeUp:
        return {};
    case FaultPlace::InformationPage:
    case FaultPlace::Capability:
        return Occurrence{WakeUp, step.occurrence};
    case FaultPlace::Configuration:
        return Occurrence{Capability, step.occurrence};
    case FaultPlace::Address:
    case FaultPlace::LastAddress:
        if (step.occurrence > 1)
            return Occurrence{Address, step.occurrence - 1};
        return Occurrence{Configuration, 1};
    }
    Q_UNREACHABLE();
}

/// An answer to an attempt that makes the run try again.
PrinterFault negativeAnswer(const Occurrence &attempt)
{
    if (attempt.command == Configuration)
        return {.command = attempt.command, .occurrence = attempt.occurrence, .result = 2};
    return {.command = attempt.command, .occurrence = attempt.occurrence, .data = QByteArray()};
}

FaultCase makeCase(const FaultRow &row, const Place &place, Ending ending, int attempt)
{
    const Occurrence step = occurrenceAt(place, attempt);
    FaultCase made;
    made.name = QByteArray(place.name) + ' ' + QByteArray::number(step.occurrence) + ": " + row.name;
    made.place = place.place;
    made.ending = ending;
    for (int earlier = 1; earlier < step.occurrence; ++earlier)
        made.script.faults.push_back(negativeAnswer({step.command, earlier}));
    if (place.place == FaultPlace::Configuration)
        made.refusals = attempt - 1;
    PrinterFault fault = row.fault;
    fault.command = step.command;
    fault.occurrence = step.occurrence;
    made.script.faults.push_back(fault);
    made.script.pulledPlug = row.pulledPlug;
    for (BusEvent event : row.between) {
        event.after = before(place.place, step);
        made.script.events.push_back(event);
    }
    return made;
}

} // namespace

std::vector<FaultCase> FaultMatrix::everyAttempt()
{
    std::vector<FaultCase> cases;
    for (const FaultRow &row : rows()) {
        for (const Place &place : places) {
            const auto ending = row.endings.at(std::size_t(place.place));
            for (int attempt = 1; ending && attempt <= place.attempts; ++attempt)
                cases.push_back(makeCase(row, place, *ending, attempt));
        }
    }
    return cases;
}

std::vector<FaultCase> FaultMatrix::everyPlace()
{
    std::vector<FaultCase> cases;
    int turn = 0;
    for (const FaultRow &row : rows()) {
        for (const Place &place : places) {
            if (const auto ending = row.endings.at(std::size_t(place.place)))
                cases.push_back(makeCase(row, place, *ending, turn % place.attempts + 1));
        }
        ++turn;
    }
    return cases;
}
