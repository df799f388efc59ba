#include "BundleEx.h"

#include "HostLanguages.h"
#include "InfoList.h"

#include <QFileInfo>
#include <QSettings>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

constexpr auto languagesKey = "AppleLanguages"_L1;

QSettings userDefaults()
{
    return QSettings(u"wifitool"_s, u"wifitool"_s);
}

} // namespace

BundleEx &BundleEx::mainBundle()
{
    static auto *bundle = new BundleEx;
    return *bundle;
}

bool BundleEx::showLanguage(const std::optional<QString> &code)
{
    std::unique_ptr<LanguageBundle> bundle;
    if (code) {
        const QString folder = InfoList::resourceFolder() + u'/' + *code + u".lproj"_s;
        if (QFileInfo(folder).isDir())
            bundle = std::make_unique<LanguageBundle>(folder);
    }
    mainBundle().m_languageBundle = std::move(bundle);
    const bool shows = mainBundle().m_languageBundle != nullptr;
    mainBundle().m_shownLanguage = shows ? code : std::nullopt;
    return shows;
}

std::optional<QString> BundleEx::shownLanguage()
{
    return mainBundle().m_shownLanguage;
}

QStringList BundleEx::setAppLanguage(const std::optional<QString> &code)
{
    QStringList languages = getCurrentLanguage();
    if (!code || code->isEmpty())
        return languages;

    const auto known = std::ranges::find_if(languages, [&](const QString &entry) { return entry.startsWith(*code); });
    if (known == languages.end())
        languages.prepend(*code);
    else
        languages.move(known - languages.begin(), 0);

    userDefaults().setValue(languagesKey, languages);
    return languages;
}

QStringList BundleEx::getCurrentLanguage()
{
    const QStringList stored = userDefaults().value(languagesKey).toStringList();
    return stored.isEmpty() ? HostLanguages::preferred() : stored;
}

QString BundleEx::localizedStringForKey(const QString &key, const QString &value, const QString &) const
{
    if (m_languageBundle) {
        if (const auto text = m_languageBundle->text(key))
            return *text;
    }
    return value.isEmpty() ? key : value;
}
