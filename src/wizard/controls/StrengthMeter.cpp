#include "StrengthMeter.h"

#include "Palette.h"

#include <QPainter>

namespace
{

constexpr int barCount = 4;
constexpr int barWidth = 32;
constexpr int barHeight = 4;
constexpr int gap = 4;

} // namespace

StrengthMeter::StrengthMeter(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(barCount * barWidth + (barCount - 1) * gap, barHeight);
}

void StrengthMeter::setLevel(int level)
{
    m_level = level;
    update();
}

void StrengthMeter::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (int bar = 0; bar < barCount; ++bar) {
        painter.setBrush(bar < m_level ? Palette::focusBlue : Palette::listHover);
        painter.drawRoundedRect(QRectF(bar * (barWidth + gap), 0, barWidth, barHeight), barHeight / 2.0,
                                barHeight / 2.0);
    }
}
