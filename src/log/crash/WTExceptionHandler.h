#pragma once

#include <QStringList>

/// Turns an uncaught exception or a signal that would end the process into one report in the log, written by every
/// logger before the process goes on or ends.
///
/// After a report: SIGSEGV ends the process with status 0 unless told otherwise, an exception aborts it, and after any
/// other signal the process carries on, with two exceptions. An instruction that then faults again ends the process by
/// the signal's default action, without another report, so that no fault can fill the disk. A breakpoint instruction
/// aborts the process: libraries end a program with one, and count on not coming back (GLib then waits in an endless
/// loop).
class WTExceptionHandler
{
public:
    /// Installs the handlers. Once; the log does it when it is made.
    static void uncaughtExceptionHandler();
    /// What the process ends with after a SIGSEGV, for a program whose status 0 says that all is done.
    static void setStatusAfterFault(int status);
    /// The call stack of the current thread as text, innermost first, 128 entries at most.
    static QStringList backtrace();
};
