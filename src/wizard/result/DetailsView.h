#pragma once

#include <QWidget>

class CopyButton;
class QLabel;
class QToolButton;

/// A technical line for support that a button unfolds, with a button that copies it.
class DetailsView : public QWidget
{
    Q_OBJECT

public:
    explicit DetailsView(QWidget *parent = nullptr);

    /// Folds the view up again; an empty line hides it.
    void setLine(const QString &line);

private:
    void unfold(bool open);

    QToolButton *m_switch;
    QWidget *m_content;
    QLabel *m_line;
    CopyButton *m_copy;
};
