#include "LanguageBundle.h"

#include "Log.h"

using namespace Qt::Literals::StringLiterals;

LanguageBundle::LanguageBundle(const QString &folder)
{
    if (!m_table.load(u"wifitool.qm"_s, folder))
        logDebug("no texts in %@", folder);
}

std::optional<QString> LanguageBundle::text(const QString &key) const
{
    const QString found = m_table.translate("wifitool", key.toUtf8().constData());
    if (found.isEmpty())
        return std::nullopt;
    return found;
}
