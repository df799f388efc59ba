#pragma once

#include "CommandLine.h"
#include "CommandPorts.h"

/// Runs a subcommand to its end, or until the person or the session ends it. Once per process, on the main thread, with
/// an application object and the rooms' ports set.
/// @returns the process exit status.
int wt_ctl(const CommandLine &line, const CommandPorts &ports);
