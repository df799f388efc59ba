#include "detectDeviceAccess.h"

#include <QFileInfo>
#include <algorithm>
#include <array>
#include <systemd/sd-login.h>
#include <unistd.h>

namespace
{

/// The package's rule, in each folder that udev reads (udev(7)).
constexpr std::array rulePaths{
    "/etc/udev/rules.d/60-wifitool.rules",           "/run/udev/rules.d/60-wifitool.rules",
    "/usr/local/lib/udev/rules.d/60-wifitool.rules", "/usr/lib/udev/rules.d/60-wifitool.rules",
    "/lib/udev/rules.d/60-wifitool.rules",
};

bool ruleIsInstalled()
{
    return std::ranges::any_of(rulePaths,
                               [](const char *path) { return QFileInfo::exists(QString::fromLatin1(path)); });
}

/// The rule gives devices to whoever has the active session of a seat (sd-login(3)).
bool userIsOnSeat()
{
    constexpr int activeSessions = 1;
    const int seats = sd_uid_get_seats(getuid(), activeSessions, nullptr);
    return seats != 0;
}

} // namespace

DeviceAccess detectDeviceAccess()
{
    return {.ruleInstalled = ruleIsInstalled(), .isOnSeat = userIsOnSeat()};
}
