#pragma once

#include "Alert.h"

#include <functional>

/// The main window, as far as the application's own life needs it. Main thread.
class AppWindow
{
public:
    virtual ~AppWindow() = default;

    /// @param byForce brings the window ahead of other programs' windows; otherwise the desktop is asked to do so.
    virtual void comeForward(bool byForce) = 0;

    /// Shows a sheet and returns at once; `answered` gets the button's answer, unless the window goes away before.
    virtual void presentAlert(const Alert &alert, std::function<void(int response)> answered) = 0;
};
