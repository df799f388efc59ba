#include "TilePair.h"

#include "WTHoverView.h"

#include <QHBoxLayout>

namespace
{

constexpr int gap = 32;

} // namespace

TilePair::TilePair(WTHoverView *first, WTHoverView *second, QWidget *parent)
    : QWidget(parent)
    , m_first(first)
    , m_second(second)
{
    const int pictureHeight = qMin(first->roomForPicture(), second->roomForPicture());
    first->setPictureHeight(pictureHeight);
    second->setPictureHeight(pictureHeight);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    layout->addStretch(1);
    layout->addWidget(first);
    layout->addWidget(second);
    layout->addStretch(1);
}

void TilePair::choose(const WTHoverView *clicked, WTHoverView *key)
{
    WTHoverView *other = key == m_first ? m_second : m_first;
    key->setIsSelect(clicked == key);
    other->setIsSelect(clicked != key);
}
