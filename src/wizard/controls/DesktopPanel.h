#pragma once

#include <functional>

class DesktopPort;
class QWidget;

/// The desktop's panels. A desktop without the wanted one is said in a sheet on `window`. Main thread.
namespace DesktopPanel
{

/// @param afterwards called once: at once when there is a panel, else when the sheet is closed.
void openAddPrinter(QWidget *window, DesktopPort &desktop, std::function<void()> afterwards);
void openPrivacySettings(QWidget *window, DesktopPort &desktop, std::function<void()> afterwards);

} // namespace DesktopPanel
