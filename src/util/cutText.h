#pragma once

#include <QString>

/// The first `length` UTF-16 units of a longer text; one less where the cut would go through a surrogate pair.
QString cutText(const QString &text, qsizetype length);
