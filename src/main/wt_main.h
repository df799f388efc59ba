#pragma once

#include <functional>

class WTWindow;
struct Machine;

/// The program: starts the log, describes the host in it, settles the interface language, shows the wizard and runs it
/// to its end. Called once per process, on the main thread, before there is an application object.
/// @param launched called when the window shows, before the event loop starts.
/// @returns the process exit status.
int wt_main(int argc, char **argv, const Machine &machine, const std::function<void(WTWindow &)> &launched = {});
