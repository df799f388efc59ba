#pragma once

#include <QColor>
#include <QWidget>

class LiveLabel;
class QLabel;

/// The frame around one text field: label above, the field in a white box with a coloured border, a line below for help
/// or an error.
class FieldFrame : public QWidget
{
    Q_OBJECT

public:
    /// The field becomes the frame's child. The label is its accessible name, and the label's mnemonic key goes to it.
    FieldFrame(const QString &label, QWidget *field, QWidget *parent = nullptr);

    /// `Palette::frame` at first. The screen sets `Palette::focusBlue` when the field gets the keyboard; the frame goes
    /// back to `Palette::frame` by itself when another widget of the window gets it.
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color);

    /// Grey text below the field. An empty text hides the line.
    void setHelp(const QString &text);
    /// Red text instead of the help, spoken by screen readers. An empty text brings the help back.
    void setError(const QString &text);
    /// Adds a widget below the field and its note.
    void addBelow(QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showHelpOrError();

    QLabel *m_label;
    QLabel *m_help;
    LiveLabel *m_error;
    QWidget *m_field;
    QColor m_borderColor;
};
