#pragma once

#include <QWidget>

/// Four short bars, as many of them filled as the level says.
class StrengthMeter : public QWidget
{
    Q_OBJECT

public:
    explicit StrengthMeter(QWidget *parent = nullptr);

    /// 0 to 4.
    void setLevel(int level);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_level = 0;
};
