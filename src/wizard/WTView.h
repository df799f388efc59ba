#pragma once

#include <QWidget>

class WTWindow;

/// The base of every screen. Screens are made once with the window and live as long as it; the window shows one at a
/// time. All on the main thread.
class WTView : public QWidget
{
    Q_OBJECT

public:
    explicit WTView(QWidget *parent = nullptr);

    /// The screen that was showing when this one was pushed; null for the first screen.
    WTView *preView() const { return m_preView; }
    void setPreView(WTView *view) { m_preView = view; }

    /// The window that holds this screen, null while none does.
    WTWindow *ostraWindow() const;

    /// Called once, when every outlet is wired. Subclasses call the base first.
    virtual void awakeFromNib();
    /// Called by the window before this screen becomes its content.
    virtual void viewWillMoveToSuperview();
    /// Called by the window after the swap; calls `viewDidApear` when this screen is the window's content.
    void viewDidMoveToWindow();
    /// Runs on every arrival, forward or back. Subclasses call the base first.
    virtual void viewDidApear();

    void pushView(WTView *target);
    void backPreviousView();

private:
    WTView *m_preView = nullptr;
};
