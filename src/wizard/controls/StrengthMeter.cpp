#include "StrengthMeter.h"

#include "Palette.h"

#include <QPainter>
#include <cmath>

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

void StrengthMeter::setStrength(double strength)
{
    m_strength = strength;
    update();
}

void StrengthMeter::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int filled = static_cast<int>(std::ceil(m_strength * barCount));
    for (int bar = 0; bar < barCount; ++bar) {
        painter.setBrush(bar < filled ? Palette::focusBlue : Palette::listHover);
        painter.drawRoundedRect(QRectF(bar * (barWidth + gap), 0, barWidth, barHeight), barHeight / 2.0,
                                barHeight / 2.0);
    }
}
