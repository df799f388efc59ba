#pragma once

#include <QColor>
#include <QProgressBar>

/// A bar from 0 to 100. Screen readers hear its value change.
class WTProgressView : public QProgressBar
{
    Q_OBJECT

public:
    explicit WTProgressView(QWidget *parent = nullptr);

    int progress() const { return value(); }
    /// Values below 0 count as 0, values over 100 as 100.
    void setProgress(int progress);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color;
};
