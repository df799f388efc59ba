#include "LibraryLog.h"

#include <QDateTime>

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
    if (m_file.fileName() == path && (path.isEmpty() || m_file.isOpen()))
        return;
    m_file.close();
    m_file.setFileName(path);
    // Without its file the library works in silence.
    if (!path.isEmpty())
        m_file.open(QIODevice::Append, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void LibraryLog::write(Level level, const QString &text)
{
    const std::lock_guard lock(m_mutex);
    if (!m_file.isOpen() || !(m_levelMask & level))
        return;
    const QByteArray line =
        u"%1 %2 %3\n"_s.arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs), nameOf(level), text).toUtf8();
    if (m_file.size() + line.size() > sizeLimit)
        m_file.resize(0);
    m_file.write(line);
    m_file.flush();
}
