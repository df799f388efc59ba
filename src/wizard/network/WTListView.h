#pragma once

#include <QElapsedTimer>
#include <QListView>

/// The list of networks: rows of one height, chosen with the mouse or the keyboard.
class WTListView : public QListView
{
    Q_OBJECT

public:
    explicit WTListView(QWidget *parent = nullptr);

    /// Makes `row` the list's current row, without `rowChosen`.
    void showChosenRow(int row);

    /// Goes to the row whose name begins with what was typed quickly, blanks included.
    void keyboardSearch(const QString &typed) override;

Q_SIGNALS:
    /// The person chose a row: by a click, an arrow key, the space bar or a screen reader's command. Once per act.
    void rowChosen(int row);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    /// Keeps the current row in sight.
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /// `Palette::frame` at rest, `Palette::focusBlue` with the keyboard, as around the fields.
    void setFrameColor(const QColor &color);
    /// For a click or the space bar on the row that is selected already: the selection does not change then, so that
    /// `selectionChanged` has not emitted `rowChosen`.
    void chooseOnce(const QModelIndex &index);

    QElapsedTimer m_sinceTyped; ///< Since the last letter of a name.
    bool m_showsChoice = false; ///< The selection is being changed by `showChosenRow`, not by the person.
    bool m_said = false;        ///< `rowChosen` was emitted since the last key or mouse button was pressed.
};
