#include "Utf8Text.h"

#include <QStringDecoder>

std::optional<QString> utf8Text(QByteArrayView bytes)
{
    QStringDecoder decoder{QStringDecoder::Utf8, QStringDecoder::Flag::Stateless};
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}
