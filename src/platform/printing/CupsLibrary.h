#pragma once

#include <cups/cups.h>

/// The functions of libcups that the program calls. The library is loaded by the first who asks for them: it brings a
/// dozen others along, and the window shows without any of them.
struct CupsLibrary {
    decltype(&::cupsGetDests) getDests;
    decltype(&::cupsGetDests2) getDests2;
    decltype(&::cupsFreeDests) freeDests;
    decltype(&::cupsGetOption) getOption;

    /// Null on a host without libcups. Any thread.
    [[nodiscard]] static const CupsLibrary *load();
};
