#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>
#include <functional>
#include <optional>

/// A class as the facade sees it: its name and the two static operations with which it keeps a log level of its own.
/// Either may be missing; only a class with both takes part in the levels per class.
struct WTLogClass {
    QString name;
    std::function<quint64()> logLevel;
    std::function<void(quint64)> wtcSetLogLevel;

    template <typename Class>
    static WTLogClass named(const QString &name)
    {
        WTLogClass made{name, nullptr, nullptr};
        if constexpr (requires { Class::logLevel(); })
            made.logLevel = [] { return quint64{Class::logLevel()}; };
        if constexpr (requires { Class::wtcSetLogLevel(quint64{}); })
            made.wtcSetLogLevel = [](quint64 level) { Class::wtcSetLogLevel(level); };
        return made;
    }

    /// Makes the class known to the process, once per name, typically from a static initialiser of the class. The
    /// language keeps no list of its classes: this is that list. Any thread.
    static void publish(const WTLogClass &published);
    static QList<WTLogClass> allPublished();
    static std::optional<WTLogClass> withName(const QString &name);
};
