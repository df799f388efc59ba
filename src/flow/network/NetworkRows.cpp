#include "NetworkRows.h"

#include "Localized.h"
#include "TextFormat.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

// The two kinds of network that want no password, in the library's numbering.
constexpr qint64 openSecurity = 1;
constexpr qint64 enhancedOpenSecurity = 13;

} // namespace

void NetworkRows::setNetworks(const std::vector<WTWiFiPtr> &networks, const QString &joined, qint64 joinedSecurity)
{
    beginResetModel();
    m_networks = networks;
    m_joined = joined;
    m_joinedSecurity = joinedSecurity;
    endResetModel();
}

void NetworkRows::setChosenRow(int row)
{
    const int before = std::exchange(m_chosenRow, row);
    for (const int changed : {before, row}) {
        if (changed >= 0 && changed < rowCount())
            Q_EMIT dataChanged(index(changed), index(changed), {ChosenRole});
    }
}

int NetworkRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_networks.size());
}

QVariant NetworkRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const WTWiFi &network = *m_networks[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return network.shownSSID().value_or(QString());
    case Qt::AccessibleTextRole:
        return description(network);
    case QualityRole:
        return network.quality;
    case SecurityRole:
        return network.authModeLabel().value_or(QString());
    case LockedRole:
        return network.security != openSecurity && network.security != enhancedOpenSecurity;
    case ChosenRole:
        return index.row() == m_chosenRow;
    case ThisComputersRole:
        return isThisComputers(network);
    default:
        return {};
    }
}

QString NetworkRows::description(const WTWiFi &network) const
{
    QStringList parts{network.shownSSID().value_or(QString()), formatText(localized(u"%ld%%"_s), {network.quality}),
                      network.authModeLabel().value_or(QString())};
    if (isThisComputers(network))
        parts += localized(u"此电脑"_s);
    return parts.join(u", "_s);
}
