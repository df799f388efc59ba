#pragma once

#include "WTError.h"

#include <cups/cups.h>

/// The functions of libcups that the program calls. The library is loaded while the program runs: it brings a dozen
/// others along, which the first window would otherwise wait for.
struct CupsLibrary {
    decltype(&::cupsGetDests) getDests;
    decltype(&::cupsGetDests2) getDests2;
    decltype(&::cupsFreeDests) freeDests;
    decltype(&::cupsGetOption) getOption;

    /// An error on a host without libcups. Any thread.
    [[nodiscard]] static const WTResult<CupsLibrary> &load();
};
