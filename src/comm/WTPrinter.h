#pragma once

#include "WTUSB.h"

#include <memory>

class WTNetwork;

/// One discovered printer. Made anew on every report and shared by the screens that hold it.
/// The full declaration comes with the records; screens rely on the members below.
class WTPrinter;
using WTPrinterPtr = std::shared_ptr<WTPrinter>;
