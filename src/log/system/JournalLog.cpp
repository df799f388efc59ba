#include "JournalLog.h"

#include <QByteArray>
#include <syslog.h>
#include <vector>

#define SD_JOURNAL_SUPPRESS_LOCATION
#include <systemd/sd-journal.h>

JournalLog::JournalLog(const QString &subsystem, const QString &category)
    : m_subsystem(subsystem)
    , m_category(category)
{
}

int JournalLog::priority(OSLogType type)
{
    switch (type) {
    case OSLogType::Error:
        return LOG_ERR;
    case OSLogType::Info:
        return LOG_INFO;
    case OSLogType::Debug:
        return LOG_DEBUG;
    }
    return LOG_DEBUG;
}

void JournalLog::send(OSLogType type, const QString &text)
{
    std::vector<QByteArray> fields{"MESSAGE=" + text.toUtf8(), "PRIORITY=" + QByteArray::number(priority(type))};
    if (m_subsystem)
        fields.push_back("SUBSYSTEM=" + m_subsystem->toUtf8());
    if (m_category)
        fields.push_back("CATEGORY=" + m_category->toUtf8());
    std::vector<iovec> vectors;
    vectors.reserve(fields.size());
    for (QByteArray &field : fields)
        vectors.push_back({field.data(), static_cast<size_t>(field.size())});
    sd_journal_sendv(vectors.data(), static_cast<int>(vectors.size()));
}
