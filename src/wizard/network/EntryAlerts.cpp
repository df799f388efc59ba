#include "EntryAlerts.h"

#include "Localized.h"
#include "Log.h"
#include "NetworkRules.h"
#include "showAlert.h"

using namespace Qt::Literals::StringLiterals;

void EntryAlerts::showNote(QWidget *window, const QString &text)
{
    showAlert(window,
              {.messageText = localized(u"温馨提示："_s), .informativeText = text, .buttons = {localized(u"确定"_s)}});
}

void EntryAlerts::refusePassword(QWidget *window, const QString &password)
{
    if (NetworkRules::isPasswordTooLong(password))
        logWarning("password over %d bytes refused", NetworkRules::maximumPasswordBytes);
    else
        logWarning("password with a control character refused");
    showNote(window, NetworkRules::passwordError(password));
}
