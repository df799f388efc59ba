#pragma once

#include <QScrollBar>

/// A vertical scroll bar that is drawn as a rounded handle on white, without arrows and groove.
class SlimScrollBar : public QScrollBar
{
    Q_OBJECT

public:
    explicit SlimScrollBar(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
