#pragma once

/// Opens the desktop's add-printer panel and returns at once; whether it could is not told.
void openAddPrinterPanel();
