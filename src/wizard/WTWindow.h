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
    /// All that were added, in this order.
    const QList<WTView *> &screens() const { return m_screens; }

    WTView *contentView() const override { return m_contentView; }
    void setContentView(WTView *view) override;

    void comeForward(bool byForce) override;
    void presentAlert(const Alert &alert, std::function<void(int response)> answered) override;

    /// Does nothing: the window lives until its owner destroys it, closed or not.
    void setReleasedWhenClosed(bool released);

    WTView *welcomeView = nullptr;     ///< Set by the layout, read by nothing.
    WTView *autoInstallView = nullptr; ///< Set by the layout, read by nothing.

Q_SIGNALS:
    /// The close button was pressed. Closing itself is refused unless the application or the session is ending.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QStackedWidget *m_content; ///< Holds the screens that have been shown, and is the parent of all.
    QList<WTView *> m_screens;
    WTView *m_contentView = nullptr;
};
