#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

/// The bytes decoded as UTF-8; absent when they are no valid UTF-8.
std::optional<QString> utf8Text(QByteArrayView bytes);
