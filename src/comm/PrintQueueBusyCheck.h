#pragma once

#include "SpoolerPort.h"

#include <QString>
#include <vector>

/// Which screen asks whether a printer is printing. The two ask in slightly different ways.
enum class BusyCheckVariant {
    List,        ///< Keeps the hyphens of the printer type, and logs each queue that it examines.
    ManualEntry, ///< Removes the hyphens of the printer type, and logs nothing.
};

/// Whether a print queue of this printer is printing, as the spooler sees it. Blocks until the spooler has answered,
/// but no longer than two seconds: where there is no answer, nothing is printing. Always from one and the same thread.
/// @param spooler outlives the question, which may go on after that.
bool isWorkingWithPrintType(SpoolerPort &spooler, const QString &printerType, BusyCheckVariant variant);

/// The same for given queues: whether one whose name contains `printQueueMatchKey` is in state "4", processing. An
/// empty key matches no queue.
bool isWorking(const std::vector<PrintDestination> &destinations, const QString &printerType, const QString &vendor,
               BusyCheckVariant variant);

/// The text by which a printer's queue is recognised: the printer type without spaces, without what follows "series"
/// and without what precedes the vendor. Whether the type contains the two words is asked in any case, but the text is
/// cut only at words in lower case.
QString printQueueMatchKey(const QString &printerType, const QString &vendor, BusyCheckVariant variant);
