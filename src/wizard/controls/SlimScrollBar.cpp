#include "SlimScrollBar.h"

#include "Palette.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace
{

constexpr int barWidth = 12;
constexpr int inset = 3;

} // namespace

SlimScrollBar::SlimScrollBar(QWidget *parent)
    : QScrollBar(Qt::Vertical, parent)
{
    setAttribute(Qt::WA_Hover);
}

QSize SlimScrollBar::sizeHint() const
{
    return {barWidth, QScrollBar::sizeHint().height()};
}

void SlimScrollBar::paintEvent(QPaintEvent *)
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF handle = style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    QPainter painter(this);
    painter.fillRect(rect(), Palette::white);
    if (maximum() == minimum())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isSliderDown() || underMouse() ? Palette::label : Palette::frame);
    const QRectF shape = handle.adjusted(inset, 0, -inset, 0);
    painter.drawRoundedRect(shape, shape.width() / 2, shape.width() / 2);
}
