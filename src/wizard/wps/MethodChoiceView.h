#pragma once

#include "WTHoverView.h"
#include "WTView.h"

class ScreenFrame;
class TilePair;
class WTButton;
class WTDefaultStyleBtn;

/// What the two screens that choose a way of Wi-Fi Protected Setup share: two tiles, the way back and the way on.
class MethodChoiceView : public WTView, public WTHoverViewDelegate
{
    Q_OBJECT

public:
    void awakeFromNib() override;
    /// Makes this screen the delegate of both tiles and chooses the first one.
    void ff_config();

protected:
    MethodChoiceView(WTHoverView *first, WTHoverView *second, QWidget *parent);

    void setTexts(const QString &heading, const QString &instruction);

    TilePair *tiles() const { return m_tiles; }
    WTDefaultStyleBtn *nextButton() const { return m_nextBtn; }
    WTButton *previousButton() const { return m_previous; }

private:
    WTHoverView *m_first;
    WTHoverView *m_second;
    TilePair *m_tiles;
    WTDefaultStyleBtn *m_nextBtn;
    WTButton *m_previous;
    ScreenFrame *m_frame;
};
