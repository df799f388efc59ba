#include "WTTableCellView.h"

#include "Localized.h"
#include "NetworkRows.h"
#include "Palette.h"
#include "Picture.h"
#include "TextFormat.h"
#include "TextStyle.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr int margin = 16;
constexpr int gap = 8;
constexpr int lockSize = 16;
constexpr int percentWidth = 44;

QColor backgroundOf(const QStyleOptionViewItem &option, bool chosen)
{
    if (chosen)
        return Palette::focusBlue;
    return option.state.testFlag(QStyle::State_MouseOver) ? Palette::listHover : Palette::white;
}

/// Four bars of growing height; those within the quality are dark.
void paintSignal(QPainter &painter, QRect area, qint64 quality, const QColor &color)
{
    constexpr int bars = 4, width = 3, step = 5;
    for (int bar = 0; bar < bars; ++bar) {
        const int height = (bar + 1) * lockSize / bars;
        QColor fill = color;
        if (quality <= bar * 100 / bars)
            fill.setAlphaF(0.25);
        painter.fillRect(QRect(area.left() + bar * step, area.bottom() + 1 - height, width, height), fill);
    }
}

} // namespace

void WTTableCellView::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const bool chosen = index.data(NetworkRows::ChosenRole).toBool();
    const QColor quiet = chosen ? Palette::heading : Palette::label;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillRect(option.rect, backgroundOf(option, chosen));

    QRect rest = option.rect.adjusted(margin, 0, -margin, 0);
    const auto takeRight = [&rest](int width) {
        const QRect taken(rest.right() + 1 - width, rest.top(), width, rest.height());
        rest.setRight(taken.left() - 1 - gap);
        return taken;
    };
    const auto centred = [](QRect area) {
        return QRect(area.left(), area.center().y() - lockSize / 2, area.width(), lockSize);
    };

    const qint64 quality = index.data(NetworkRows::QualityRole).toLongLong();
    painter->setFont(TextStyle::font(TextStyle::Size::Small));
    painter->setPen(quiet);
    painter->drawText(takeRight(percentWidth), Qt::AlignRight | Qt::AlignVCenter,
                      formatText(localized(u"%ld%%"_s), {quality}));
    paintSignal(*painter, centred(takeRight(18)), quality, Palette::heading);
    const QRect lock = centred(takeRight(lockSize));
    if (index.data(NetworkRows::LockedRole).toBool())
        Picture(u"lock"_s).paint(*painter, lock);

    QString below = index.data(NetworkRows::SecurityRole).toString();
    if (index.data(NetworkRows::ThisComputersRole).toBool())
        below += u"  ·  "_s + localized(u"此电脑"_s);
    const QRect upper(rest.left(), rest.top() + 4, rest.width(), rest.height() / 2 - 2);
    const QRect lower(rest.left(), upper.bottom() + 1, rest.width(), rest.height() / 2 - 6);
    painter->drawText(lower, Qt::AlignLeft | Qt::AlignVCenter,
                      painter->fontMetrics().elidedText(below, Qt::ElideRight, lower.width()));
    painter->setFont(TextStyle::font(TextStyle::Size::Body, chosen ? QFont::DemiBold : QFont::Normal));
    painter->setPen(Palette::heading);
    painter->drawText(
        upper, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
        painter->fontMetrics().elidedText(index.data(NetworkRows::NameRole).toString(), Qt::ElideRight, upper.width()));
    painter->restore();
}

QSize WTTableCellView::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {option.rect.width(), rowHeight};
}
