#pragma once

#include "WTLogFileManagerDefault.h"

/// A manager whose every log file has one fixed name.
class WTLogFileManager : public WTLogFileManagerDefault
{
public:
    WTLogFileManager(const QString &logsDirectory, const QString &fileName);

    /// Before first use.
    void setFileName(const QString &fileName) { m_fileName = fileName; }
    QString fileName() const { return m_fileName; }

    QString newLogFileName() const override { return m_fileName; }
    bool isLogFile(const QString &fileName) const override { return fileName == m_fileName; }

private:
    QString m_fileName;
};
