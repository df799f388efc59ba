#pragma once

#include <QList>
#include <QString>
#include <QWidget>

/// One numbered instruction: a picture, and what to do in the interface language.
struct GuideStep {
    QString pictureName;
    QString text;
};

/// Numbered steps side by side, each with its picture.
class GuideSteps : public QWidget
{
    Q_OBJECT

public:
    explicit GuideSteps(const QList<GuideStep> &steps, QWidget *parent = nullptr);
};
