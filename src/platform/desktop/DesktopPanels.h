#pragma once

#include <QLatin1StringView>
#include <QString>
#include <array>
#include <span>

/// The settings panels of the desktops. In each list the first panel that this computer has is the one that opens.
namespace DesktopPanels
{

struct Panel {
    QLatin1StringView desktop; ///< A part of "XDG_CURRENT_DESKTOP"; empty: any desktop.
    QLatin1StringView program;
    QLatin1StringView arguments;
};

inline constexpr std::array addPrinter{
    Panel{QLatin1StringView{"GNOME"}, QLatin1StringView{"gnome-control-center"}, QLatin1StringView{" printers"}},
    Panel{QLatin1StringView{"KDE"}, QLatin1StringView{"kcmshell6"}, QLatin1StringView{" kcm_printer_manager"}},
    Panel{QLatin1StringView{"KDE"}, QLatin1StringView{"kcmshell5"}, QLatin1StringView{" kcm_printer_manager"}},
    Panel{QLatin1StringView{"KDE"}, QLatin1StringView{"kde-add-printer"}, QLatin1StringView{" --addprinter"}},
    Panel{QLatin1StringView{}, QLatin1StringView{"system-config-printer"}, QLatin1StringView{}},
    Panel{QLatin1StringView{}, QLatin1StringView{"xdg-open"}, QLatin1StringView{" http://localhost:631/admin"}},
};

inline constexpr std::array privacySettings{
    Panel{QLatin1StringView{"GNOME"}, QLatin1StringView{"gnome-control-center"}, QLatin1StringView{" wifi"}},
    Panel{QLatin1StringView{"KDE"}, QLatin1StringView{"kcmshell6"}, QLatin1StringView{" kcm_networkmanagement"}},
    Panel{QLatin1StringView{"KDE"}, QLatin1StringView{"kcmshell5"}, QLatin1StringView{" kcm_networkmanagement"}},
    Panel{QLatin1StringView{}, QLatin1StringView{"nm-connection-editor"}, QLatin1StringView{}},
};

/// A shell command line that opens the first panel that belongs to this desktop and whose program is on the path. It
/// returns at once: the panel runs in a session of its own and holds none of the caller's streams. Empty when there is
/// no such panel.
QString commandLine(std::span<const Panel> panels);

} // namespace DesktopPanels
