#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

/// What an alert says. Its texts are localised already.
struct Alert {
    QString messageText;
    QString informativeText;
    QStringList buttons; ///< The first is the default; the last answers the Escape key.
};

/// What the first button answers; the second answers one more, and so on.
inline constexpr int alertFirstButtonReturn = 1000;

/// Shows `alert` as a sheet on `window`, and returns at once. Main thread.
/// @param answered called once with the button's answer, unless the window goes away before.
void showAlert(QWidget *window, const Alert &alert, std::function<void(int response)> answered = {});
