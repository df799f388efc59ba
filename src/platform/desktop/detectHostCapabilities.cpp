#include "detectHostCapabilities.h"

#include <QtGlobal>
#include <unistd.h>

HostCapabilities detectHostCapabilities()
{
    // The rest of the defaults hold for every Linux host that the program runs on.
    return {.hasUnifiedLog = access("/run/systemd/journal/socket", W_OK) == 0,
            .activatesCooperatively = qEnvironmentVariableIsSet("WAYLAND_DISPLAY")};
}
