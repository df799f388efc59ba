#include "WTListView.h"

#include "Palette.h"
#include "WTTableCellView.h"

#include <QKeyEvent>
#include <QPalette>

WTListView::WTListView(QWidget *parent)
    : QListView(parent)
{
    setItemDelegate(new WTTableCellView(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Palette::white);
    setPalette(colors);
    connect(this, &QListView::clicked, this, [this](const QModelIndex &index) { Q_EMIT rowChosen(index.row()); });
}

void WTListView::showChosenRow(int row)
{
    setCurrentIndex(model()->index(row, 0));
}

void WTListView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && currentIndex().isValid()) {
        Q_EMIT rowChosen(currentIndex().row());
        return;
    }
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    if (currentIndex().isValid() && currentIndex() != before)
        Q_EMIT rowChosen(currentIndex().row());
}
