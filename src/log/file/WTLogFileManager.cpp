#include "WTLogFileManager.h"

WTLogFileManager::WTLogFileManager(const QString &logsDirectory, const QString &fileName)
    : WTLogFileManagerDefault(logsDirectory)
{
    setFileName(fileName);
}
