#include "DesktopPanels.h"

#include <QStandardPaths>
#include <QStringList>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

bool isOffered(const DesktopPanels::Panel &panel, const QStringList &desktops)
{
    return (panel.desktop.isEmpty() || desktops.contains(panel.desktop, Qt::CaseInsensitive)) &&
           !QStandardPaths::findExecutable(panel.program).isEmpty();
}

} // namespace

QString DesktopPanels::commandLine(std::span<const Panel> panels)
{
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    const auto panel = std::ranges::find_if(panels, [&](const Panel &each) { return isOffered(each, desktops); });
    if (panel == panels.end())
        return {};
    return u"setsid %1%2 >/dev/null 2>&1 </dev/null &"_s.arg(panel->program, panel->arguments);
}
