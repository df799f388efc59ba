#pragma once

#include "AppWindow.h"
#include "ScreenHost.h"

#include <QMainWindow>

class QStackedWidget;

/// The wizard's one window; its content is exactly one screen.
class WTWindow : public QMainWindow, public AppWindow, public ScreenHost
{
    Q_OBJECT

public:
    explicit WTWindow(QWidget *parent = nullptr);

    /// Takes a screen over and keeps it hidden until it becomes the content.
    void addScreen(WTView *view);
    /// All screens that were added, in the order in which they were.
    const QList<WTView *> &screens() const { return m_screens; }

    WTView *contentView() const override { return m_contentView; }
    void setContentView(WTView *view) override;

    void comeForward(bool byForce) override;
    void presentAlert(const Alert &alert, std::function<void(int response)> answered) override;

    /// Does nothing: the window lives until its owner destroys it, closed or not.
    void setReleasedWhenClosed(bool released);

    WTView *welcomeView = nullptr;     ///< The start screen. Nothing reads it.
    WTView *autoInstallView = nullptr; ///< The run's screen. Nothing reads it.

Q_SIGNALS:
    /// The user asked for the window to be closed, and it stays open. While the application object is destroyed, the
    /// window closes without this signal.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QStackedWidget *m_content; ///< Parent of all screens; its pages are those that have been shown.
    QList<WTView *> m_screens;
    WTView *m_contentView = nullptr;
};
