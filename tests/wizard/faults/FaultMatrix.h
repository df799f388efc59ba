#pragma once

#include "PrinterScript.h"

#include <QByteArray>
#include <vector>

/// Where a run meets its fault.
enum class FaultPlace {
    InformationPage, ///< The page that is asked for on the manual entry screen, before the run.
    WakeUp,
    Capability,
    Configuration,
    Address,     ///< Any of the first six queries.
    LastAddress, ///< The seventh.
};

/// What the person sees in the end.
enum class Ending { Complete, Failed, Unsupported, ConfigFailed, Unanswered };

/// One fault in one place.
struct FaultCase {
    QByteArray name; ///< "configuration 2: stalls".
    FaultPlace place = FaultPlace::WakeUp;
    PrinterScript script; ///< For a printer that gets all four commands of a run.
    /// How many runs the printer refuses first. After each the person goes back and starts another run.
    int refusals = 0;
    Ending ending = Ending::Complete;
};

/// Every fault that the emulated printer can play, at every step of a run.
namespace FaultMatrix
{

/// Every fault at each attempt of each step: three attempts for the configuration, seven for the address.
std::vector<FaultCase> everyAttempt();
/// Every fault once at each place. Where a step has several attempts, the faults hit them in turn.
std::vector<FaultCase> everyPlace();

} // namespace FaultMatrix
