#include "ProgressBlock.h"

#include "untrustedText.h"

#include <algorithm>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

// Of ECMA-48 and its common private modes.
constexpr auto upAndClear = "\x1B[%dF\x1B[J";
constexpr auto cutLongLines = "\x1B[?7l", wrapLongLines = "\x1B[?7h";

qsizetype terminalRows()
{
    constexpr qsizetype usualRows = 24;
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_row > 0 ? qsizetype{size.ws_row} : usualRows;
}

} // namespace

bool ProgressBlock::isPossible()
{
    const QByteArray kind = qgetenv("TERM");
    return isatty(STDOUT_FILENO) && !kind.isEmpty() && kind != "dumb";
}

void ProgressBlock::setLines(const QStringList &lines)
{
    hide();
    m_lines = lines;
    show();
}

void ProgressBlock::hide()
{
    if (m_drawn > 0)
        std::printf(upAndClear, static_cast<int>(m_drawn));
    m_drawn = 0;
    std::fflush(stdout);
}

void ProgressBlock::show()
{
    if (m_lines.isEmpty())
        return;
    // One row stays for the cursor, one for the count.
    const qsizetype room = std::max(terminalRows() - 2, qsizetype{1});
    QStringList shown = m_lines.first(std::min(room, m_lines.size()));
    if (m_lines.size() > shown.size())
        shown += u"... and %1 more"_s.arg(m_lines.size() - shown.size());
    std::fputs(cutLongLines, stdout);
    for (const QString &line : shown)
        std::fputs(QByteArray(visibleText(line).toUtf8() + '\n').constData(), stdout);
    std::fputs(wrapLongLines, stdout);
    std::fflush(stdout);
    m_drawn = shown.size();
}
