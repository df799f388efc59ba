#pragma once

#include <QListView>

/// The list of networks: rows of one height, chosen with the mouse or the keyboard.
class WTListView : public QListView
{
    Q_OBJECT

public:
    explicit WTListView(QWidget *parent = nullptr);

    /// The row that is marked; the screen's answer to `rowChosen`.
    void showChosenRow(int row);

Q_SIGNALS:
    /// The user points at a row: a click, an arrow key, the space bar.
    void rowChosen(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
