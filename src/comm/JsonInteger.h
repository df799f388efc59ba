#pragma once

#include <QJsonValue>

/// A JSON value read leniently as an integer: of a number the part before the point, of a text the digits that it
/// begins with (white space and one sign may stand before them), 1 for true, and 0 for anything else. A number that is
/// too large or too small becomes the largest or the smallest one.
qint64 jsonInteger(const QJsonValue &value);
