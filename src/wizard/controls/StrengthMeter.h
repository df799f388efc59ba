#pragma once

#include <QWidget>

/// Four short bars, as many of them filled as the strength reaches quarters.
class StrengthMeter : public QWidget
{
    Q_OBJECT

public:
    explicit StrengthMeter(QWidget *parent = nullptr);

    /// 0 to 1.
    void setStrength(double strength);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_strength = 0;
};
