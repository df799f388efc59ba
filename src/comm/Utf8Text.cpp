#include "Utf8Text.h"

#include <QStringDecoder>

std::optional<QString> utf8Text(QByteArrayView bytes)
{
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder{QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom};
    const QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}
