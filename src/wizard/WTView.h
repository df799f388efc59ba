#pragma once

#include <QWidget>

class ScreenHost;

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

    /// The window that holds this screen, null while none does. A window holds its content screen and whatever lies in
    /// that screen.
    ScreenHost *ostraWindow() const;

    /// Called once, when all screens are made and know each other. Subclasses call the base first.
    virtual void awakeFromNib();
    /// Called by the window before this screen becomes its content.
    virtual void viewWillMoveToSuperview();
    /// Called by the window after the swap; calls `viewDidApear` when this screen is the window's content.
    void viewDidMoveToWindow();
    /// Called each time the person comes to this screen, on the way forward or back. Subclasses call the base first.
    virtual void viewDidApear();

    /// Shows `target` and makes this screen the one that its way back leads to.
    void pushView(WTView *target);
    /// Shows `preView`; does nothing on the first screen.
    void backPreviousView();

private:
    WTView *m_preView = nullptr;
};
