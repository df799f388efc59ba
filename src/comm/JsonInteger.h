#pragma once

#include <QJsonValue>

/// A JSON value read leniently as an integer: a number without its fraction, the leading digits of a text (white space
/// and one sign before them), true as 1, anything else as 0. What does not fit becomes the nearest value that does.
qint64 jsonInteger(const QJsonValue &value);
