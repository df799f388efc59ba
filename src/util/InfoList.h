#pragma once

#include <QString>
#include <optional>

/// The application's information list: `Info.json` in the resource folder, one object of texts ("CFG", "Vendor",
/// "CFBundleName", ...).
namespace InfoList
{

/// Sets the folder that holds `Info.json`, the language folders and the pictures. Once, before first use.
void setResourceFolder(const QString &folder);
QString resourceFolder();

/// The value of `key` as text, read from the file at each call; absent when the file or the key is missing.
std::optional<QString> value(const QString &key);

} // namespace InfoList
