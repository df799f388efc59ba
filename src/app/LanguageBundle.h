#pragma once

#include <QString>
#include <QTranslator>
#include <optional>

/// The texts of one language: the folder `<code>.lproj` with its table `wifitool.qm`.
class LanguageBundle
{
public:
    /// A folder without a readable table is a language without texts.
    explicit LanguageBundle(const QString &folder);

    /// The text for `key`; absent when the table has none. An empty text counts as none.
    std::optional<QString> text(const QString &key) const;

private:
    QTranslator m_table;
};
