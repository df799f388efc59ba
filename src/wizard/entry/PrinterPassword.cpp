#include "PrinterPassword.h"

#include "Localized.h"
#include "Log.h"
#include "showAlert.h"

using namespace Qt::Literals::StringLiterals;

bool PrinterPassword::isTooLong(const QString &password)
{
    return password.toUtf8().size() > maximumBytes;
}

QString PrinterPassword::limitText()
{
    return formatText(localized(u"打印机最多接受 %d 个字节的密码，请为网络设置较短的密码。"_s), {maximumBytes});
}

void PrinterPassword::refuse(QWidget *window)
{
    logWarning("password over %d bytes refused", maximumBytes);
    showAlert(
        window,
        {.messageText = localized(u"温馨提示："_s), .informativeText = limitText(), .buttons = {localized(u"确定"_s)}});
}
