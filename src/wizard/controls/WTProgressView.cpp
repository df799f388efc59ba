#include "WTProgressView.h"

#include "Palette.h"

#include <QPainter>

namespace
{

constexpr int barHeight = 12;

} // namespace

WTProgressView::WTProgressView(QWidget *parent)
    : QProgressBar(parent)
    , m_color(Palette::focusBlue)
{
    setRange(0, 100);
    setValue(0);
    setTextVisible(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void WTProgressView::setProgress(int progress)
{
    setValue(qBound(minimum(), progress, maximum()));
}

void WTProgressView::setColor(const QColor &color)
{
    m_color = color;
    update();
}

QSize WTProgressView::sizeHint() const
{
    return {320, barHeight};
}

void WTProgressView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF track = rect();
    const qreal radius = track.height() / 2;
    painter.setBrush(Palette::listHover);
    painter.drawRoundedRect(track, radius, radius);
    if (value() == 0)
        return;
    QRectF bar = track;
    bar.setWidth(qMax(track.height(), track.width() * value() / 100.0));
    painter.setBrush(m_color);
    painter.drawRoundedRect(bar, radius, radius);
}
