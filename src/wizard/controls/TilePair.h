#pragma once

#include <QWidget>

class WTHoverView;

/// Two tiles side by side, of which at most one is chosen.
class TilePair : public QWidget
{
    Q_OBJECT

public:
    TilePair(WTHoverView *first, WTHoverView *second, QWidget *parent = nullptr);

    /// The radio rule: a click on `key` chooses it, a click on anything else chooses the other tile.
    void choose(const WTHoverView *clicked, WTHoverView *key);

private:
    WTHoverView *m_first;
    WTHoverView *m_second;
};
