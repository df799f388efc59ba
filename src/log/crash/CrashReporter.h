#pragma once

#include "Crash.h"

/// Writes crash reports on a thread of its own, which is made ahead of any crash. The thread that crashed only hands
/// over plain facts and waits: it may hold the lock of its part of the heap (its arena) or of a logger, so it takes no
/// lock itself. Its wait is bounded, so a report that cannot be written never keeps a process from its end.
///
/// Nothing that the report needs is taken from the crashed thread's arena, or given back to it:
/// - the reporting thread and the threads of the log have arenas of their own, which no other thread shares;
/// - the facts of a signal lie in a place that is made ahead, and texts in them are only referred to;
/// - messages were made in their callers' arenas, so the logging queue leaves it to a thread that nobody waits for to
///   give them back (`GlobalQueue`), and keeps to pieces so small that the allocator takes them without a lock;
/// - if a thread of the log waits for the crashed one nevertheless, `ReportDelivery` does without it.
namespace CrashReporter
{

/// Once, before the first crash.
void start();

/// Returns when every logger has written the report, or after 5 seconds. Safe inside a signal handler. A crash of the
/// reporting thread itself is not reported.
void report(const Crash &crash);

} // namespace CrashReporter
