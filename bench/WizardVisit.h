#pragma once

#include "WizardScreens.h"

#include <QLatin1StringView>

/// One person at the wizard.
class WizardVisit
{
public:
    enum class Entry { List, Manual };
    static constexpr QLatin1StringView networkName{"Home"}, password{"secret pass"};

    /// The start screen shows, and has found the printer.
    WizardVisit(const ScreenPorts &ports, Entry entry);
    ~WizardVisit();
    WizardVisit(const WizardVisit &) = delete;
    WizardVisit &operator=(const WizardVisit &) = delete;

    /// Goes on to the entry screen, until the run can begin.
    void enter();
    /// From the click that begins the run until its last screen shows.
    void run();

private:
    bool shows(const char *screen);
    template <typename Widget>
    Widget *find(const char *name);
    void click(const char *name);

    const Entry m_entry;
    WizardScreens m_screens;
};
