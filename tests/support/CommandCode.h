#pragma once

#include <QtGlobal>

/// The commands, as they stand in the frame.
enum Command : quint16 {
    WakeUp = 0xFF21,
    Capability = 0xFF81,
    Configuration = 0xFF80,
    Address = 0xFF0F,
    InformationPage = 0xFF84,
};
