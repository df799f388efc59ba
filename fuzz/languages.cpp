/// The user's languages and the tables of texts: three lines of locale settings, a line with a text to look up, and
/// behind them what stands in `Info.json` and in the language's table.
#include "BundleEx.h"
#include "Fuzz.h"
#include "HostLanguages.h"
#include "InfoList.h"
#include "ScratchFolder.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;
using Fuzz::require;

namespace
{

void checkPreferred(const QProcessEnvironment &environment)
{
    const QStringList languages = HostLanguages::preferred(environment);
    QStringList unique = languages;
    require(unique.removeDuplicates() == 0, "a language is named once");
    for (const QString &language : languages) {
        require(!language.isEmpty() && !language.contains(u'_') && !language.contains(u'.') && !language.contains(u'@'),
                "a language has no trimmings");
    }
    const auto isScripted = [](const QString &language) {
        const QStringList parts = language.split(u'-');
        return parts.size() == 3 && parts.at(1).size() == 4;
    };
    const auto firstPlain = std::ranges::find_if_not(languages, isScripted);
    require(languages.isEmpty() == (firstPlain == languages.begin()), "what tells the script comes first");
}

void checkLookUp(const QString &code, const QString &key)
{
    BundleEx::showLanguage(code);
    const BundleEx &bundle = BundleEx::mainBundle();
    require(bundle.localizedStringForKey(key, {}, {}).isEmpty() == key.isEmpty(), "a text is never lost");
    BundleEx::showLanguage(std::nullopt);
    require(bundle.localizedStringForKey(key, {}, {}) == key, "without a language a text is its key");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    static const ScratchFolder folder;
    const auto [language, second] = Fuzz::splitAt(Fuzz::view(bytes, size), '\n');
    const auto [all, third] = Fuzz::splitAt(second, '\n');
    const auto [lang, fourth] = Fuzz::splitAt(third, '\n');
    const auto [keyBytes, table] = Fuzz::splitAt(fourth, '\n');
    const QString key = QString::fromUtf8(keyBytes);

    QProcessEnvironment environment;
    environment.insert(u"LANGUAGE"_s, QString::fromUtf8(language));
    environment.insert(u"LC_ALL"_s, QString::fromUtf8(all));
    environment.insert(u"LANG"_s, QString::fromUtf8(lang));
    checkPreferred(environment);

    InfoList::setResourceFolder(folder.path());
    folder.write(u"Info.json"_s, table);
    require(!InfoList::value(key) || table.contains('{'), "only an object holds values");
    folder.write(u"en.lproj/wifitool.qm"_s, table);
    checkLookUp(u"en"_s, key);
    checkLookUp(QString::fromUtf8(lang), key);
    return 0;
}
