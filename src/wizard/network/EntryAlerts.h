#pragma once

class QString;
class QWidget;

/// What both entry screens say in a sheet over the window.
namespace EntryAlerts
{

/// One sentence and a button that closes it.
void showNote(QWidget *window, const QString &text);

/// Logs that a password was refused, without it, and says why.
void refusePassword(QWidget *window, const QString &password);

} // namespace EntryAlerts
