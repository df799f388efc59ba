#pragma once

#include <QString>
#include <QStringList>

/// Lines at the bottom of a terminal that are drawn anew in the same place. Longer lines are cut by the terminal; what
/// does not fit below one another is counted in a last line.
class ProgressBlock
{
public:
    /// Whether standard output is a terminal that can move its cursor.
    static bool isPossible();

    void setLines(const QStringList &lines);
    void hide();
    void show();

private:
    QStringList m_lines;
    qsizetype m_drawn = 0;
};
