#pragma once

#include "Story.h"

#include <QDir>
#include <QObject>

class QWidget;
class WTWindow;

/// Walks a story through the wizard's window with clicks and keys on the widgets that show, as a person would, and
/// saves a picture of every screen. Ends the program's event loop with status 1 and a line on standard error where it
/// cannot go on; otherwise the story's last act ends the program.
class Autopilot : public QObject
{
    Q_OBJECT

public:
    /// @param pictures the folder for the pictures, which must exist.
    /// @param speed by how much to divide the time that each screen is looked at.
    Autopilot(const Story &story, WTWindow &window, const QDir &pictures, int speed);

    /// Begins as soon as the event loop runs.
    void start();
    /// Whether the last act of the story was done.
    bool arrived() const { return m_arrived; }

private:
    void walk();
    // Each returns why it could not be done; empty when it was.
    QString visit(const Visit &visit);
    QString perform(const Act &act);
    QString click(const QString &name);
    QString confirm();
    QWidget *visibleWidget(const QString &name) const;
    void savePicture(QWidget &shown, const QString &name);

    const Story &m_story;
    WTWindow &m_window;
    const QDir m_pictures;
    const int m_speed;
    int m_pictureCount = 0;
    bool m_arrived = false;
};
