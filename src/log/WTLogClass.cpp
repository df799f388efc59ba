#include "WTLogClass.h"

#include "Locked.h"

namespace
{

Locked<QList<WTLogClass>> &publishedClasses()
{
    static auto *const classes = new Locked<QList<WTLogClass>>;
    return *classes;
}

} // namespace

void WTLogClass::publish(const WTLogClass &published)
{
    publishedClasses().change([&](QList<WTLogClass> &classes) {
        classes.removeIf([&](const WTLogClass &known) { return known.name == published.name; });
        classes.append(published);
    });
}

QList<WTLogClass> WTLogClass::allPublished()
{
    return publishedClasses().read([](const QList<WTLogClass> &classes) { return classes; });
}

std::optional<WTLogClass> WTLogClass::withName(const QString &name)
{
    for (const WTLogClass &known : allPublished()) {
        if (known.name == name)
            return known;
    }
    return std::nullopt;
}
