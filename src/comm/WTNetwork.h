#pragma once

#include <QString>

/// The network side of a printer. Nothing fills it yet.
struct WTNetwork {
    QString printerName;
    QString printerURI;
    QString IPv4;
    QString IPv6;
};
