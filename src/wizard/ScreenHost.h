#pragma once

class WTView;

/// The window, as far as its screens need it: which screen shows, and the way to show another one. Main thread.
class ScreenHost
{
public:
    virtual ~ScreenHost() = default;

    /// The screen that shows; null before the first one.
    virtual WTView *contentView() const = 0;
    /// Calls `viewWillMoveToSuperview` on the screen, swaps the content for it, and calls `viewDidMoveToWindow`: in
    /// this order, and all before it returns.
    virtual void setContentView(WTView *view) = 0;
};
