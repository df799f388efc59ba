#include "detectHostCapabilities.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

HostCapabilities detectHostCapabilities()
{
    // The rest of the defaults hold for every Linux host that the program runs on.
    return {.hasUnifiedLog = QFileInfo::exists(u"/run/systemd/journal/socket"_s),
            .activatesCooperatively = qEnvironmentVariableIsSet("WAYLAND_DISPLAY")};
}
