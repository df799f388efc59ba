#include "LibraryLog.h"

#include <QDateTime>
#include <algorithm>
#include <fcntl.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

QLatin1StringView nameOf(LibraryLog::Level level)
{
    switch (level) {
    case LibraryLog::Error:
        return "error"_L1;
    case LibraryLog::Warning:
        return "warning"_L1;
    case LibraryLog::Info:
        return "info"_L1;
    case LibraryLog::Debug:
        return "debug"_L1;
    }
    return {};
}

} // namespace

void LibraryLog::configure(const QString &path, int levelMask)
{
    const std::lock_guard lock(m_mutex);
    m_levelMask = levelMask;
    if (m_path == path && (path.isEmpty() || m_file.isOpen()))
        return;
    m_path = path;
    // If the file cannot be opened, the library logs nothing.
    m_file = path.isEmpty() ? FileDescriptor() : FileDescriptor::ofRegularFile(path, O_RDWR | O_CREAT | O_APPEND);
}

void LibraryLog::write(Level level, const QString &text)
{
    const std::lock_guard lock(m_mutex);
    if (!m_file.isOpen() || !(m_levelMask & level))
        return;
    const QByteArray line =
        u"%1 %2 %3\n"_s.arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs), nameOf(level), text).toUtf8();
    if (lseek(m_file.get(), 0, SEEK_END) + line.size() > 2 * bytesKept)
        dropOldLines();
    static_cast<void>(m_file.writeAll(line));
}

void LibraryLog::dropOldLines()
{
    QByteArray latest(bytesKept, Qt::Uninitialized);
    const off_t end = lseek(m_file.get(), 0, SEEK_END);
    const ssize_t length = pread(m_file.get(), latest.data(), bytesKept, std::max<off_t>(end - bytesKept, 0));
    if (length < 0 || ftruncate(m_file.get(), 0) != 0)
        return;
    latest.truncate(length);
    // The first line was probably cut in two.
    static_cast<void>(m_file.writeAll(latest.sliced(latest.indexOf('\n') + 1)));
}
