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

    /// Replaces all rows. `joined` is the name of the network that the computer is joined to.
    void setNetworks(const std::vector<WTWiFiPtr> &networks, const QString &joined);
    void setChosenRow(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString description(const WTWiFi &network) const;

    std::vector<WTWiFiPtr> m_networks;
    QString m_joined;
    int m_chosenRow = -1;
};
