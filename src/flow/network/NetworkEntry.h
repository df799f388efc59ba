#pragma once

#include "WTWiFi.h"

#include <QString>

/// What the two fields of an entry screen hold, and where "next" leads from there.
struct NetworkEntry {
    enum class Next { PrinterBusy, EmptyName, UnusableName, UnusablePassword, Go };

    QString name;
    QString password;

    Next next(bool printerIsBusy) const;

    /// The network that the printer is told to join. Its security stays 0, whatever the real one uses.
    WTWiFiPtr network() const;

    bool operator==(const NetworkEntry &) const = default;
};
