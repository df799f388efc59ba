#include "HostLanguages.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// "zh_CN" from "zh_CN.UTF-8@stroke".
QString localeName(const QString &entry)
{
    return entry.section(u'.', 0, 0).section(u'@', 0, 0);
}

QStringList localeNames(const QProcessEnvironment &environment)
{
    QStringList names = environment.value(u"LANGUAGE"_s).split(u':');
    for (const QString &variable : {u"LC_ALL"_s, u"LC_MESSAGES"_s, u"LANG"_s})
        names << environment.value(variable);
    std::ranges::transform(names, names.begin(), localeName);
    names.removeDuplicates();
    names.removeIf([](const QString &name) { return QLocale(name).language() == QLocale::C; });
    return names;
}

QString withScript(const QLocale &locale)
{
    return QStringList{QLocale::languageToCode(locale.language()), QLocale::scriptToCode(locale.script()),
                       QLocale::territoryToCode(locale.territory())}
        .join(u'-');
}

} // namespace

namespace HostLanguages
{

std::optional<QString> currentCode()
{
    const QLocale locale = QLocale::system();
    if (locale.language() == QLocale::C)
        return std::nullopt;
    return QLocale::languageToCode(locale.language());
}

QStringList preferred(const QProcessEnvironment &environment)
{
    QStringList scripted;
    QStringList plain;
    for (const QString &name : localeNames(environment)) {
        scripted << withScript(QLocale(name));
        plain << QString(name).replace(u'_', u'-');
    }
    QStringList all = scripted + plain;
    all.removeDuplicates();
    return all;
}

} // namespace HostLanguages
