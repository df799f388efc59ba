#pragma once

#include <QObject>

class AppWindow;

/// Answers the application's life: brings the main window forward and decides what its close button does. Main thread.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    /// The window lives longer than its delegate.
    AppWindow *window() const { return m_window; }
    void setWindow(AppWindow *window) { m_window = window; }

    /// The window shows: brings it forward and lets its close button ask.
    void applicationDidFinishLaunching();
    /// The close button's action, by the manager's close state: asks on a sheet, quits at once, or nothing.
    void closeApplication();
    void applicationWillTerminate();
    bool applicationSupportsSecureRestorableState() const;
    bool applicationShouldTerminateAfterLastWindowClosed() const;

private:
    void askToQuit();

    AppWindow *m_window = nullptr;
};
