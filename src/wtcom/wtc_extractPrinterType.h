#pragma once

#include <QString>

/// The model designation in a printer's name: its first word that holds a digit, else the trimmed text. Idempotent.
QString wtc_extractPrinterType(const QString &name);
