#pragma once

#include "WTError.h"

#include <QJsonArray>
#include <QString>
#include <optional>

/// Codes of the domain "Catalogue" (`catalogueErrorDomain`).
enum class CatalogueErrorCode : int {
    NotConfigured = 1, ///< The information list names no catalogue file.
    Unreadable,        ///< No such file, or it may not be read.
    NotJson,
    WrongShape, ///< No object with an array "printer_info".
};

inline constexpr QLatin1StringView catalogueErrorDomain{"Catalogue"};

/// The printer models that the program supports, in file order. A JSON file holds them:
///
///     {"printer_info": [{"device_name": "QZ100", "supportWifi": 1, "isOldACL": 0}, ...]}
///
/// The three look-ups that answer yes or no compare names in different ways, and the first entry that matches decides.
/// An empty catalogue answers yes to all, so that a program without its catalogue refuses no printer. "supportWifi" and
/// "isOldACL" are read by `jsonInteger`. An entry without a usable name never matches.
class ModelCatalogue
{
public:
    /// What an entry says of its model.
    struct Model {
        bool supportsWiFi = false;
        qint64 wifiCode = 0; ///< "supportWifi" as it stands.
        bool oldAcl = false;
    };

    ModelCatalogue() = default;
    explicit ModelCatalogue(const QJsonArray &entries)
        : m_entries(entries)
    {
    }

    /// Reads the file that the information list names as "CFG".
    static WTResult<ModelCatalogue> readConfigured();
    static WTResult<ModelCatalogue> read(const QString &path);

    const QJsonArray &entries() const { return m_entries; }

    /// Whether the model is known. An entry matches when its name contains `printerType` or the other way round, in any
    /// case.
    bool isVaildFile(const QString &printerType) const;
    /// Whether the model supports Wi-Fi. An entry matches when both names hold the same model designation.
    bool isWifiPrinter(const QString &printerType) const;
    /// Whether the model needs the old ACL dialect. Entries match as for `isWifiPrinter`.
    bool oldAclPrinter(const QString &printerType) const;
    /// The entry whose whole name is `designation`.
    std::optional<Model> modelNamed(const QString &designation) const;

private:
    QJsonArray m_entries;
};
