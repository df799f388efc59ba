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
    /// The user points at a row: a click, an arrow key, the space bar, a screen reader's command.
    void rowChosen(int row);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /// `Palette::frame` at rest, `Palette::focusBlue` with the keyboard, as around the fields.
    void setFrameColor(const QColor &color);
    /// Says `rowChosen` unless the selection, which changes first where it changes at all, has said it.
    void chooseOnce(const QModelIndex &index);

    bool m_showsChoice = false; ///< The screen moves the selection.
    bool m_said = false;        ///< `rowChosen`, since the last key or mouse button went down.
};
