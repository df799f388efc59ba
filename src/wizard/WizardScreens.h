#pragma once

#include "ScreenPorts.h"
#include "WpsOutcomeView.h"

#include <memory>

class WTStartView;
class WTWindow;

/// Makes the window and all screens, and tells each screen which others it leads to. Main thread.
class WizardScreens
{
public:
    /// @param processEnd how the WPS outcome screens end the process.
    explicit WizardScreens(const ScreenPorts &ports, const ProcessEnd &processEnd = endProcess);
    ~WizardScreens();

    WTWindow &window() { return *m_window; }
    /// Makes the start screen the window's content and shows the window.
    void show();

private:
    std::unique_ptr<WTWindow> m_window;
    WTStartView *m_startView;
};
