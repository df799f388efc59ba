#pragma once

#include "SpoolerPort.h"

#include <QString>
#include <vector>

/// The screens that ask whether a printer is printing differ in two small ways.
enum class BusyCheckVariant {
    List,        ///< Keeps hyphens; logs what it examines.
    ManualEntry, ///< Removes hyphens; logs nothing.
};

/// Whether a print queue of this printer is printing, as the spooler sees it. Blocks for as long as the spooler takes.
bool isWorkingWithPrintType(SpoolerPort &spooler, const QString &printerType, BusyCheckVariant variant);

/// The rule behind it: whether a destination whose name contains the match key is in state "4", processing. An empty
/// key matches nothing.
bool isWorking(const std::vector<PrintDestination> &destinations, const QString &printerType, const QString &vendor,
               BusyCheckVariant variant);

/// What the name of a printer's queue contains: the printer type without spaces, without what follows "series" and
/// without what precedes the vendor. Both words are looked for in any case but cut only where they stand in lower case.
QString printQueueMatchKey(const QString &printerType, const QString &vendor, BusyCheckVariant variant);
