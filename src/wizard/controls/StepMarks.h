#pragma once

#include <QWidget>

/// The four steps that the marks at the top of every screen show.
enum class WizardStep { Connect, Network, SetUp, Done };

/// The row of numbered steps at the top of every screen; the current one stands out, the earlier ones are ticked.
class StepMarks : public QWidget
{
    Q_OBJECT

public:
    explicit StepMarks(WizardStep current, QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_current;
    QStringList m_titles;
};
