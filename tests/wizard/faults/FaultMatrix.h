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
    PrinterScript script; ///< For a printer that is asked all four questions.
    /// Configurations that the printer refuses first; each time the person goes back and on again.
    int refusals = 0;
    Ending ending = Ending::Complete;
};

/// Every fault that the emulated printer can play, at every step of a run.
namespace FaultMatrix
{

/// Each step at each of its attempts: the configuration at 3, the address query at 7.
std::vector<FaultCase> everyAttempt();
/// Each place once per fault, the attempts in turn.
std::vector<FaultCase> everyPlace();

} // namespace FaultMatrix
