#pragma once

#include <QStyledItemDelegate>

/// Draws one row of the network list: name, security and "this computer" mark on the left, lock, signal bars and per
/// cent on the right. The chosen row has its own background.
class WTTableCellView : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static constexpr int rowHeight = 44;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
