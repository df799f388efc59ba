#pragma once

#include <QString>

/// The text for `key` in the interface language: the attached language's, else the key itself. A "%Text%" inside a
/// translation becomes "%@". Main thread.
QString localized(const QString &key);
