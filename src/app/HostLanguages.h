#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <optional>

/// What the locale environment says of the user's languages.
namespace HostLanguages
{

/// The language code of the current locale ("zh"); absent for the C locale.
std::optional<QString> currentCode();

/// The languages of LANGUAGE, LC_ALL, LC_MESSAGES and LANG, best first, as "zh-Hans-CN" and "zh-CN". All entries with a
/// script come before those without, since only they tell Simplified from Traditional Chinese for every territory.
QStringList preferred(const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

} // namespace HostLanguages
