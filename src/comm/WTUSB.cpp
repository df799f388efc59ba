#include "WTUSB.h"

#include "TextFormat.h"
#include "isSafe.h"

#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The characters that a URL query holds unencoded, besides letters, digits and "-._~".
constexpr char allowedInUrlQuery[] = "!$&'()*+,;=:@/?";

constexpr auto uuidPrefix = "00000000-0000-"_L1;

bool endsGroup(qsizetype position)
{
    return position == 2 || position == 4;
}

} // namespace

QString WTUSB::URI() const
{
    if (!m_uri) {
        const QString plain = u"usb://"_s + formatText("%@/%@?serial=%@", manufacturer, printerName, serialNumber);
        m_uri = QString::fromLatin1(QUrl::toPercentEncoding(plain, allowedInUrlQuery));
    }
    return *m_uri;
}

void WTUSB::setURI(const QString &uri)
{
    m_uri = uri;
}

std::optional<QString> WTUSB::UUID() const
{
    if (!m_uuid && isSafe(serialNumber)) {
        QString digits;
        qsizetype position = 0;
        for (const QChar character : *serialNumber) {
            digits += ToHex(character.unicode());
            if (endsGroup(++position))
                digits += u'-';
        }
        m_uuid = uuidPrefix + digits;
    }
    return m_uuid;
}

QString WTUSB::ToHex(quint16 value)
{
    return QString::number(value, 16).toUpper();
}
