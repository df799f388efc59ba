#pragma once

#include "Crash.h"

/// Writes crash reports on a thread of its own, which is made ahead of any crash. The thread that crashed only hands
/// over plain facts and waits: it may hold the lock of the heap, of a queue or of a logger, so it must take none
/// itself. Its wait is bounded, so a report that cannot be written never keeps a process from its end.
namespace CrashReporter
{

/// Once, before the first crash.
void start();

/// Returns when every logger has written the report, or after 5 seconds. Safe inside a signal handler. A crash of the
/// reporting thread itself is not reported.
void report(const Crash &crash);

} // namespace CrashReporter
