/// Names of log files: what a folder holds after years, with files that others put there. Each line is the end of a
/// file's name; it follows the program's own beginning unless it starts with '!'.
#include "Fuzz.h"
#include "LogFileNameDate.h"
#include "ScratchFolder.h"
#include "WTLogFileManagerDefault.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;

namespace
{

constexpr qsizetype longestName = 255, mostFiles = 12;

QDateTime now()
{
    return QDateTime::fromSecsSinceEpoch(1'800'000'000);
}

void checkDate(const QString &text)
{
    const QDateTime date = LogFileNameDate::parse(text);
    // Only years of four digits can be named, and an offset may lead out of them.
    constexpr int firstYear = 1000, lastYear = 9999;
    const int year = date.toUTC().date().year();
    if (!date.isValid() || year < firstYear || year > lastYear)
        return;
    require(LogFileNameDate::parse(LogFileNameDate::text(date)) == date, "a date survives as a name");
}

/// The name that a line asks for; empty when no file can have it.
QByteArray fileName(QByteArrayView line)
{
    QByteArray name = WTLogFileManagerDefault::applicationName().toUtf8() + ' ';
    name.append(line);
    if (line.startsWith('!'))
        name = line.sliced(1).toByteArray();
    // The program's texts are Unicode; a name that is none of it could not be spoken of.
    name = QString::fromUtf8(name).toUtf8();
    const bool isUsable = !name.isEmpty() && name.size() <= longestName && !name.contains('/') &&
                          !name.contains('\0') && name != "." && name != "..";
    return isUsable ? name : QByteArray();
}

void checkFolder(const ScratchFolder &folder)
{
    WTLogFileManagerDefault manager(folder.path(), now);
    QStringList names = manager.unsortedLogFileNames();
    QStringList sorted = manager.sortedLogFileNames();
    require(std::ranges::is_permutation(names, sorted), "sorting loses no file");
    for (const QString &name : names)
        require(name.startsWith(WTLogFileManagerDefault::applicationName()) && manager.isLogFile(name), "ours alone");

    manager.deleteOldLogFiles();
    const QStringList kept = manager.sortedLogFileNames();
    const auto most = qsizetype(manager.maximumNumberOfLogFiles());
    require(kept == sorted.first(std::min(most, sorted.size())), "the newest files are kept");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    static const ScratchFolder folder;
    folder.empty();
    QByteArrayView rest = Fuzz::view(bytes, size);
    for (qsizetype count = 0; count < mostFiles && !rest.isEmpty(); ++count) {
        const auto [line, behind] = Fuzz::splitAt(rest, '\n');
        rest = behind;
        checkDate(QString::fromUtf8(line).remove(u".log"_s));
        if (const QByteArray name = fileName(line); !name.isEmpty())
            folder.write(QString::fromUtf8(name), {});
    }
    checkFolder(folder);
    return 0;
}
