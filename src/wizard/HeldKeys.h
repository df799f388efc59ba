#pragma once

#include <QObject>

/// Lets Enter and Escape act once for as long as they are held, wherever the keyboard is: the first press may have
/// brought the screen, or the sheet, that the next one would act on. An event filter of the application.
class HeldKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// The time stamps of the keys' last releases, in milliseconds of the window system; 0 for none.
    quint64 m_enterReleased = 0;
    quint64 m_escapeReleased = 0;
};
