#include "Ieee1284DeviceID.h"

#include <QList>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace
{

QString valueOf(const QString &text, std::initializer_list<QLatin1StringView> keys)
{
    for (const QLatin1StringView key : keys) {
        for (const QStringView entry : QStringView(text).split(u';')) {
            const qsizetype colon = entry.indexOf(u':');
            if (colon < 0 || entry.first(colon).trimmed().compare(key, Qt::CaseInsensitive) != 0)
                continue;
            QString value = entry.sliced(colon + 1).trimmed().toString();
            if (!value.isEmpty())
                return value;
        }
    }
    return {};
}

} // namespace

Ieee1284DeviceID::Ieee1284DeviceID(const QString &text)
    : m_manufacturer(valueOf(text, {"MFG"_L1, "MANUFACTURER"_L1}))
    , m_model(valueOf(text, {"MDL"_L1, "MODEL"_L1}))
{
}
