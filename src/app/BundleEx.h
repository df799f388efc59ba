#pragma once

#include "LanguageBundle.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

/// The application's main bundle: its resource folder, through which every text lookup of the process goes, and the
/// user's preferred languages. Main thread.
class BundleEx
{
public:
    static BundleEx &mainBundle();

    /// Makes lookups prefer the texts of `code`, or of no language when it is absent or has no folder. True when the
    /// language has a folder.
    static bool showLanguage(const std::optional<QString> &code);

    /// The language whose texts are preferred now; absent without any.
    static std::optional<QString> shownLanguage();

    /// Moves the first preferred language that begins with `code`, else `code` itself, to the front of the user's
    /// stored list, and answers the new list. Absent and empty codes change nothing.
    static QStringList setAppLanguage(const std::optional<QString> &code);

    /// The preferred languages, best first: the user's stored list, else what the environment says.
    static QStringList getCurrentLanguage();

    /// The attached language's text for `key`, else `value`, else the key itself. The program has one table; its name
    /// is not looked at.
    QString localizedStringForKey(const QString &key, const QString &value, const QString &table) const;

private:
    BundleEx() = default;

    std::unique_ptr<LanguageBundle> m_languageBundle;
    std::optional<QString> m_shownLanguage;
};
