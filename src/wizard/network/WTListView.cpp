#include "WTListView.h"

#include "Palette.h"
#include "WTTableCellView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPalette>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <utility>

WTListView::WTListView(QWidget *parent)
    : QListView(parent)
{
    setItemDelegate(new WTTableCellView(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setFrameColor(Palette::frame);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Palette::white);
    setPalette(colors);
    connect(this, &QListView::clicked, this, &WTListView::chooseOnce);
}

void WTListView::showChosenRow(int row)
{
    const QScopedValueRollback guard(m_showsChoice, true);
    setCurrentIndex(model()->index(row, 0));
}

void WTListView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    if (m_showsChoice || selected.isEmpty())
        return;
    const int row = selected.indexes().constFirst().row();
    showChosenRow(row);
    m_said = true;
    Q_EMIT rowChosen(row);
}

void WTListView::chooseOnce(const QModelIndex &index)
{
    if (!std::exchange(m_said, true) && index.isValid())
        Q_EMIT rowChosen(index.row());
}

void WTListView::mousePressEvent(QMouseEvent *event)
{
    m_said = false;
    QListView::mousePressEvent(event);
}

void WTListView::keyPressEvent(QKeyEvent *event)
{
    m_said = false;
    const bool types = m_sinceTyped.isValid() && m_sinceTyped.elapsed() < QApplication::keyboardInputInterval();
    if (event->key() == Qt::Key_Space && types)
        keyboardSearch(event->text());
    else if (event->key() == Qt::Key_Space)
        chooseOnce(currentIndex());
    else
        QListView::keyPressEvent(event);
}

void WTListView::keyboardSearch(const QString &typed)
{
    m_sinceTyped.start();
    QListView::keyboardSearch(typed);
}

void WTListView::resizeEvent(QResizeEvent *event)
{
    const bool wasInSight = QRect(QPoint(), event->oldSize()).intersects(visualRect(currentIndex()));
    QListView::resizeEvent(event);
    if (wasInSight)
        scrollTo(currentIndex());
}

void WTListView::setFrameColor(const QColor &color)
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, color);
    setPalette(colors);
}

void WTListView::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    setFrameColor(Palette::focusBlue);
}

void WTListView::focusOutEvent(QFocusEvent *event)
{
    QListView::focusOutEvent(event);
    setFrameColor(Palette::frame);
}
