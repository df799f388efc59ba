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
    /// Takes the field over as its child and gives it the label as accessible name. The label's mnemonic leads to it.
    FieldFrame(const QString &label, QWidget *field, QWidget *parent = nullptr);

    /// `Palette::frame` at rest, `Palette::focusBlue` with the keyboard. It is at rest again as soon as the keyboard
    /// goes elsewhere in the window.
    QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color);

    /// Quiet text below the field; empty hides it.
    void setHelp(const QString &text);
    /// Red text in the same place, spoken by screen readers; empty brings the help back.
    void setError(const QString &text);
    /// One more line of the caller's below the box.
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
