#pragma once

#include "WTWiFi.h"

#include <QAbstractListModel>
#include <vector>

/// The networks as rows of a list control, with a role for each thing that a row shows. Main thread.
class NetworkRows : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        NameRole = Qt::UserRole,
        QualityRole,       ///< Per cent.
        SecurityRole,      ///< The label, in the interface language.
        LockedRole,        ///< The network wants a password.
        ChosenRole,        ///< The row that the screen has chosen.
        ThisComputersRole, ///< The network the computer is joined to.
    };

    using QAbstractListModel::QAbstractListModel;

    /// Replaces all rows. The computer is joined to the network of this name and security, the latter in the platform's
    /// numbering.
    void setNetworks(const std::vector<WTWiFiPtr> &networks, const QString &joined, qint64 joinedSecurity);
    void setChosenRow(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString description(const WTWiFi &network) const;
    bool isThisComputers(const WTWiFi &network) const { return network.isJoined(m_joined, m_joinedSecurity); }

    std::vector<WTWiFiPtr> m_networks;
    QString m_joined;
    qint64 m_joinedSecurity = 0;
    int m_chosenRow = -1;
};
