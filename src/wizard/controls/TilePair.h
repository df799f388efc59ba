#pragma once

#include <QWidget>

class WTHoverView;

/// Two tiles side by side, of which at most one is chosen.
class TilePair : public QWidget
{
    Q_OBJECT

public:
    TilePair(WTHoverView *first, WTHoverView *second, QWidget *parent = nullptr);

    /// Chooses `key` if it is the clicked tile, else the other tile of the pair. The tile that is not chosen is
    /// deselected.
    void choose(const WTHoverView *clicked, WTHoverView *key);

private:
    WTHoverView *m_first;
    WTHoverView *m_second;
};
