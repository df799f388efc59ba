#include "ModelCatalogue.h"

#include "InfoList.h"
#include "JsonInteger.h"
#include "isSafe.h"
#include "wtc_extractPrinterType.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace
{

WTError catalogueError(CatalogueErrorCode code, const QString &message)
{
    return {.domain = catalogueErrorDomain, .code = static_cast<int>(code), .message = message};
}

bool holds(qint64 integer32)
{
    return static_cast<qint32>(integer32) != 0;
}

ModelCatalogue::Model modelOf(const QJsonObject &entry)
{
    const qint64 supportWifi = jsonInteger(entry["supportWifi"_L1]);
    return {.supportsWiFi = holds(supportWifi),
            .wifiCode = supportWifi,
            .oldAcl = isSafe(entry["isOldACL"_L1]) && holds(jsonInteger(entry["isOldACL"_L1]))};
}

/// The first entry with a usable name that `matches`.
template <typename Rule>
std::optional<ModelCatalogue::Model> firstModel(const QJsonArray &entries, const QString &wanted, Rule matches)
{
    if (!isSafe(wanted))
        return std::nullopt;
    for (const auto &entry : entries) {
        const QString name = entry["device_name"_L1].toString();
        if (isSafe(name) && matches(name))
            return modelOf(entry.toObject());
    }
    return std::nullopt;
}

std::optional<ModelCatalogue::Model> modelDesignated(const QJsonArray &entries, const QString &printerType)
{
    const QString designation = wtc_extractPrinterType(printerType);
    return firstModel(entries, printerType,
                      [&](const QString &name) { return wtc_extractPrinterType(name) == designation; });
}

} // namespace

WTResult<ModelCatalogue> ModelCatalogue::readConfigured()
{
    const auto path = InfoList::value(u"CFG"_s);
    if (!path)
        return catalogueError(CatalogueErrorCode::NotConfigured, u"the information list names no catalogue"_s);
    return read(*path);
}

WTResult<ModelCatalogue> ModelCatalogue::read(const QString &path)
{
    QFile file{path};
    if (!file.open(QIODevice::ReadOnly))
        return catalogueError(CatalogueErrorCode::Unreadable, u"%1: %2"_s.arg(path, file.errorString()));
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &fault);
    if (fault.error != QJsonParseError::NoError)
        return catalogueError(CatalogueErrorCode::NotJson, u"%1: %2"_s.arg(path, fault.errorString()));
    const QJsonValue models = document["printer_info"_L1];
    if (!models.isArray())
        return catalogueError(CatalogueErrorCode::WrongShape, u"%1: \"printer_info\" is no array"_s.arg(path));
    return ModelCatalogue{models.toArray()};
}

bool ModelCatalogue::isVaildFile(const QString &printerType) const
{
    return m_entries.isEmpty() || firstModel(m_entries, printerType, [&](const QString &name) {
               return printerType.contains(name, Qt::CaseInsensitive) ||
                      name.contains(printerType, Qt::CaseInsensitive);
           });
}

bool ModelCatalogue::isWifiPrinter(const QString &printerType) const
{
    if (m_entries.isEmpty())
        return true;
    const auto model = modelDesignated(m_entries, printerType);
    return model && model->wifiCode != 0;
}

bool ModelCatalogue::oldAclPrinter(const QString &printerType) const
{
    if (m_entries.isEmpty())
        return true;
    const auto model = modelDesignated(m_entries, printerType);
    return model && model->oldAcl;
}

std::optional<ModelCatalogue::Model> ModelCatalogue::modelNamed(const QString &designation) const
{
    return firstModel(m_entries, designation, [&](const QString &name) { return name == designation; });
}
