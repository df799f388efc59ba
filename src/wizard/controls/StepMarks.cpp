#include "StepMarks.h"

#include "LiveLabel.h"
#include "Localized.h"
#include "Palette.h"
#include "TextFormat.h"
#include "TextStyle.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int rowHeight = 56;
constexpr int diameter = 24;
constexpr int markGap = 8;
constexpr int stepGap = 40;
constexpr int pageMargin = 40;

void drawTick(QPainter &painter, const QRectF &circle)
{
    const QPointF center = circle.center();
    const QPointF tick[] = {center + QPointF(-4.5, 0.5), center + QPointF(-1.5, 3.5), center + QPointF(4.5, -3.5)};
    painter.drawPolyline(tick, 3);
}

} // namespace

StepMarks::StepMarks(WizardStep current, QWidget *parent)
    : QWidget(parent)
    , m_current(static_cast<int>(current))
    , m_titles{localized(u"连接"_s), localized(u"网络"_s), localized(u"配置"_s), localized(u"完成"_s)}
{
    setFixedHeight(rowHeight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleRole(*this, QAccessible::StaticText);
    setAccessibleName(formatText(localized(u"第%d步，共%d步：%@"_s),
                                 {m_current + 1, static_cast<int>(m_titles.size()), m_titles[m_current]}));
}

QSize StepMarks::sizeHint() const
{
    return {0, rowHeight};
}

void StepMarks::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    qreal x = pageMargin;
    for (int step = 0; step < m_titles.size(); ++step) {
        const bool current = step == m_current;
        painter.setFont(TextStyle::font(TextStyle::Size::Small, current ? QFont::DemiBold : QFont::Normal));
        const QColor color = current ? Palette::red : Palette::label;
        const QRectF circle(x, (rowHeight - diameter) / 2.0, diameter, diameter);
        painter.setPen(QPen(current ? Palette::red : Palette::frame, 1.5));
        painter.setBrush(current ? Palette::red : Palette::white);
        painter.drawEllipse(circle.adjusted(1, 1, -1, -1));
        painter.setPen(
            QPen(current ? Palette::white : Palette::label, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (step < m_current)
            drawTick(painter, circle);
        else
            painter.drawText(circle, Qt::AlignCenter, QString::number(step + 1));
        x += diameter + markGap;

        const qreal width = painter.fontMetrics().horizontalAdvance(m_titles[step]);
        painter.setPen(color);
        painter.drawText(QRectF(x, 0, width + 1, rowHeight), Qt::AlignVCenter | Qt::AlignLeft, m_titles[step]);
        x += width + markGap;
        if (step + 1 == m_titles.size())
            break;
        painter.setPen(QPen(Palette::frame, 1));
        painter.drawLine(QPointF(x, rowHeight / 2.0), QPointF(x + stepGap - markGap, rowHeight / 2.0));
        x += stepGap;
    }
}
