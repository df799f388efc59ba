#pragma once

#include "StepMarks.h"

#include <QVBoxLayout>
#include <QWidget>

class QAbstractButton;
class QLabel;

/// What every screen has: step marks, heading, instruction, a content area, and the bar with the way back on the left
/// and the main action on the right. It fills its screen. The Escape key presses the back button. The Enter key presses
/// the main button, or another push button if that has the keyboard. The two buttons ignore the second press of a
/// double-click: the first press may have changed the screen, and the second would go to the new one.
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

    /// Holds the screen's own widgets, from top to bottom. Add a stretch where empty space shall be.
    QVBoxLayout *content() const { return m_content; }

    /// Puts a screen's only widget into the middle of the content area.
    void setCenteredContent(QWidget *widget);

    /// The button becomes the frame's child; the same holds for the two functions below.
    void setBackButton(QAbstractButton *button);
    void setMainButton(QAbstractButton *button);
    /// A less important widget, such as a check box. It stands left of the main button.
    void addToBar(QWidget *widget);
    /// The widget that has the keyboard when the screen shows for the first time. Without this call it is the first one
    /// that accepts the keyboard.
    void setFirstFocus(QWidget *widget) { m_firstFocus = widget; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *button, QEvent *event) override;

private:
    /// The push button that has the keyboard; the main button if none has it.
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
