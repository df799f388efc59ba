#pragma once

#include <QScrollBar>

/// A vertical scroll bar that is only a rounded handle on white. Moving it is the base's.
class SlimScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    explicit SlimScrollBar(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
