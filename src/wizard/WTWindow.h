#pragma once

#include "AppWindow.h"

#include <QMainWindow>

class QStackedWidget;
class WTView;

/// The wizard's one window; its content is exactly one screen.
class WTWindow : public QMainWindow, public AppWindow
{
    Q_OBJECT

public:
    explicit WTWindow(QWidget *parent = nullptr);

    /// Takes a screen over and keeps it hidden until it becomes the content.
    void addScreen(WTView *view);
    /// All that were added, in this order.
    const QList<WTView *> &screens() const { return m_screens; }

    WTView *contentView() const { return m_contentView; }
    /// `viewWillMoveToSuperview`, the swap, `viewDidMoveToWindow`, in this order and before it returns.
    void setContentView(WTView *view);

    void comeForward(bool byForce) override;
    void presentAlert(const Alert &alert, std::function<void(int response)> answered) override;

    /// Ignored: closing never releases the main window.
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
