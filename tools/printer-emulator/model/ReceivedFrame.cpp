#include "ReceivedFrame.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

QString ReceivedFrame::verdict() const
{
    if (isSound())
        return u"sound"_s;
    QStringList lines;
    for (const FrameProblem &problem : problems)
        lines.append(u"at %1: %2"_s.arg(problem.offset).arg(problem.what));
    return lines.join(u"; "_s);
}
