#include "refuseLongPassword.h"

#include "Localized.h"
#include "Log.h"
#include "NetworkRules.h"
#include "showAlert.h"

using namespace Qt::Literals::StringLiterals;

void refuseLongPassword(QWidget *window)
{
    logWarning("password over %d bytes refused", NetworkRules::maximumPasswordBytes);
    showAlert(window, {.messageText = localized(u"温馨提示："_s),
                       .informativeText = NetworkRules::passwordLimitText(),
                       .buttons = {localized(u"确定"_s)}});
}
