#include "WTLogFileInfo.h"

#include "ArchivedMark.h"
#include "LogConsole.h"

#include <QFile>
#include <QFileInfo>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

WTLogFileInfo::WTLogFileInfo(const QString &filePath, WallClock clock)
    : m_filePath(filePath)
    , m_clock(std::move(clock))
{
}

QString WTLogFileInfo::fileName() const
{
    return QFileInfo(m_filePath).fileName();
}

const LogFileAttributes &WTLogFileInfo::fileAttributes() const
{
    if (!m_fileAttributes) {
        m_fileAttributes.emplace();
        if (const FileError error = readLogFileAttributes(m_filePath, *m_fileAttributes))
            LogConsole::report("WTLogFileInfo: Failed to read file attributes: %@", error.description());
    }
    return *m_fileAttributes;
}

double WTLogFileInfo::age() const
{
    constexpr double millisecondsPerSecond = 1000;
    if (!creationDate().isValid())
        return 0;
    return static_cast<double>(creationDate().msecsTo(m_clock())) / millisecondsPerSecond;
}

bool WTLogFileInfo::isArchived() const
{
    return ArchivedMark::isOn(m_filePath);
}

void WTLogFileInfo::setIsArchived(bool isArchived)
{
    if (isArchived)
        ArchivedMark::putOn(m_filePath);
    else
        ArchivedMark::takeOff(m_filePath);
}

void WTLogFileInfo::renameFile(const QString &newFileName)
{
    if (newFileName == fileName())
        return;
    const QString newPath = QFileInfo(m_filePath).path() + u'/' + newFileName;
    if (std::remove(QFile::encodeName(newPath)) != 0) {
        const FileError error = FileError::ofLastCall(newPath);
        if (!error.fileIsMissing())
            LogConsole::report("WTLogFileInfo: Error deleting archive (%@): %@", fileName(), error.description());
    }
    if (std::rename(QFile::encodeName(m_filePath), QFile::encodeName(newPath)) != 0)
        LogConsole::report("WTLogFileInfo: Error renaming file (%@): %@", fileName(),
                           FileError::ofLastCall(m_filePath).description());
    ArchivedMark::follow(m_filePath, newPath);
    m_filePath = newPath;
    reset();
}

void WTLogFileInfo::reset()
{
    m_fileAttributes.reset();
}

QString WTLogFileInfo::description() const
{
    return u"{\n"
           "    filePath = \"%1\";\n"
           "    fileName = \"%2\";\n"
           "    fileAttributes = \"%3\";\n"
           "    creationDate = \"%4\";\n"
           "    modificationDate = \"%5\";\n"
           "    fileSize = %6;\n"
           "    age = %7;\n"
           "    isArchived = %8;\n"
           "}"_s.arg(m_filePath, fileName(), fileAttributes().description(), creationDate().toString(Qt::ISODate),
                     modificationDate().toString(Qt::ISODate), QString::number(fileSize()), QString::number(age()),
                     QString::number(static_cast<int>(isArchived())));
}

std::weak_ordering WTLogFileInfo::reverseCompareByCreationDate(const WTLogFileInfo &another) const
{
    return reverseCompareDatesUs(creationDate(), another.creationDate());
}

std::weak_ordering WTLogFileInfo::reverseCompareByModificationDate(const WTLogFileInfo &another) const
{
    return reverseCompareDatesUs(modificationDate(), another.modificationDate());
}

std::weak_ordering WTLogFileInfo::reverseCompareDatesUs(const QDateTime &us, const QDateTime &them)
{
    if (!us.isValid() && !them.isValid())
        return std::weak_ordering::equivalent;
    if (!us.isValid())
        return std::weak_ordering::greater;
    if (!them.isValid())
        return std::weak_ordering::less;
    return them.toMSecsSinceEpoch() <=> us.toMSecsSinceEpoch();
}
