#pragma once

#include <QString>

struct Machine;

/// All that happens before there is an application object, for the wizard and for the command line alike: the rooms get
/// their ports, the log starts and describes the host, the interface language is settled. Once per process, on the main
/// thread.
/// @returns the folder of the log.
QString beginProgram(const Machine &machine);
