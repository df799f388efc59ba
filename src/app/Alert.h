#pragma once

#include <QString>
#include <QStringList>

/// What an alert says. Its texts are localised already.
struct Alert {
    QString messageText;
    QString informativeText;
    QStringList buttons; ///< The first is the default; the last answers the Escape key.
};

/// What the first button answers; the second answers one more, and so on.
inline constexpr int alertFirstButtonReturn = 1000;
