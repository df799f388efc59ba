#pragma once

#include <QObject>

class AppWindow;

/// Answers the events of the application's life: brings the main window forward, decides what its close button does,
/// and ends the program when the session ends. Main thread.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    /// The window lives longer than its delegate.
    AppWindow *window() const { return m_window; }
    void setWindow(AppWindow *window) { m_window = window; }

    /// The window shows: brings it forward and lets its close button ask. From now on a request to quit, which comes
    /// from the session and never from the close button, is answered by `sessionEnds`.
    void applicationDidFinishLaunching();
    /// The close button's action, by the manager's close state: asks on a sheet, quits at once, or does nothing.
    void closeApplication();
    /// Ends the program without a question, so that nobody's log-out is held up. A run under way is broken off, which
    /// the log says.
    void sessionEnds();
    void applicationWillTerminate();
    bool applicationSupportsSecureRestorableState() const;
    bool applicationShouldTerminateAfterLastWindowClosed() const;

protected:
    bool eventFilter(QObject *application, QEvent *event) override;

private:
    void askToQuit();

    AppWindow *m_window = nullptr;
};
