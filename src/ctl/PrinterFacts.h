#pragma once

#include "WTPrinter.h"

#include <QJsonObject>

/// How wifitoolctl names a printer.

/// The USB port as the kernel names it: the bus, and the ports of each hub on the way, "1-4.2".
QString portName(quint32 locationID);

/// Model, serial number where there is one, and port: "QZ100 QM0001 (1-4.2)".
QString nameOf(const WTPrinter &printer);

/// The keys "model", "serial", "port" and "uri".
QJsonObject jsonOf(const WTPrinter &printer);
