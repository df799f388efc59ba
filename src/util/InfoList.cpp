#include "InfoList.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// Never destroyed: a crash report may ask for the list while the process ends.
QString &folder()
{
    static auto *const path = new QString;
    return *path;
}

} // namespace

namespace InfoList
{

void setResourceFolder(const QString &path)
{
    folder() = path;
}

QString resourceFolder()
{
    return folder();
}

std::optional<QString> value(const QString &key)
{
    QFile file(folder() + u"/Info.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonValue found = QJsonDocument::fromJson(file.readAll()).object().value(key);
    if (!found.isString() && !found.isDouble())
        return std::nullopt;
    return found.toVariant().toString();
}

} // namespace InfoList
