#pragma once

#include "StepMarks.h"

#include <QVBoxLayout>
#include <QWidget>

class QAbstractButton;
class QLabel;

/// What every screen has: step marks, heading, instruction, a content area, and the bar with the way back on the left
/// and the main action on the right. It fills its screen. Enter is the main action unless another
/// push button has the keyboard, Escape the way back. The second press of a double-click does nothing on the two
/// buttons: the first one may have brought the screen under the pointer.
///
///     auto *frame = new ScreenFrame(this, WizardStep::Network);
///     frame->setHeading(localized(u"..."_s));
///     frame->content()->addWidget(list);
///     frame->setBackButton(m_previous);
///     frame->setMainButton(m_next);
class ScreenFrame : public QWidget
{
    Q_OBJECT

public:
    ScreenFrame(QWidget *screen, WizardStep step);

    /// One short sentence; also the screen's accessible name.
    void setHeading(const QString &text);
    /// One or two lines of what to do.
    void setInstruction(const QString &text);
    QString heading() const;

    /// Where the screen's own widgets go, from the top; add a stretch for what is left over.
    QVBoxLayout *content() const { return m_content; }

    /// The same for a screen of one widget: it stands in the middle of the content area.
    void setCenteredContent(QWidget *widget);

    /// The frame takes the button over.
    void setBackButton(QAbstractButton *button);
    void setMainButton(QAbstractButton *button);
    /// A second, quieter widget of the bar, left of the main button (a check box, a side action).
    void addToBar(QWidget *widget);
    /// Who gets the keyboard when the screen shows for the first time; else the first that takes it.
    void setFirstFocus(QWidget *widget) { m_firstFocus = widget; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *button, QEvent *event) override;

private:
    /// The push button with the keyboard, else the main action.
    QAbstractButton *buttonForEnter() const;

    QWidget *m_screen;
    QLabel *m_heading;
    QLabel *m_instruction;
    QVBoxLayout *m_content;
    QHBoxLayout *m_bar;
    QAbstractButton *m_back = nullptr;
    QAbstractButton *m_main = nullptr;
    QWidget *m_firstFocus = nullptr;
};
