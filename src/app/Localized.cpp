#include "Localized.h"

#include "BundleEx.h"

using namespace Qt::Literals::StringLiterals;

QString localized(const QString &key)
{
    return BundleEx::mainBundle().localizedStringForKey(key, {}, {}).replace(u"%Text%"_s, u"%@"_s);
}
