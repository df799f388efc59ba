#include "CauseText.h"

#include "FailureText.h"
#include "Localized.h"
#include "PrinterAnswer.h"
#include "PrinterCommand.h"
#include "PrinterExchange.h"
#include "TextFormat.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

/// The command that a step of the run waits for.
quint16 commandOf(RunStep step)
{
    switch (step) {
    case RunStep::Idle:
    case RunStep::Waking:
        return PrinterCommand::wakeUp;
    case RunStep::Checking:
        return PrinterCommand::wifiCapability;
    case RunStep::Sending:
        return PrinterCommand::wifiConfiguration;
    case RunStep::WaitingForAddress:
    case RunStep::Ended:
        return PrinterCommand::address;
    }
    Q_UNREACHABLE();
}

QString stepName(quint16 command)
{
    switch (command) {
    case PrinterCommand::wakeUp:
        return localized(u"唤醒打印机"_s);
    case PrinterCommand::wifiCapability:
        return localized(u"询问打印机能否使用 Wi-Fi"_s);
    case PrinterCommand::wifiConfiguration:
        return localized(u"发送网络设置"_s);
    case PrinterCommand::address:
        return localized(u"查询打印机的地址"_s);
    default:
        return localized(u"打印信息页"_s);
    }
}

/// A sentence with the step's name in it.
QString atStep(const QString &key, quint16 command)
{
    return formatText(localized(key), {stepName(command)});
}

QString restartAdvice()
{
    return localized(u"请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。"_s);
}

CauseText heldText(const UsbCause &cause)
{
    if (cause.holder.isEmpty())
        return {localized(u"另一个程序正在使用打印机。"_s),
                localized(u"请关闭正在打印或扫描的程序以及虚拟机，然后再试一次。"_s)};
    return {
        formatText(localized(u"“%@”（进程 %@）正在使用打印机。"_s), {cause.holder, QString::number(cause.holderPID)}),
        localized(u"请关闭该程序，然后再试一次。如果打印机已连接到虚拟机，请先在虚拟机中断开。"_s)};
}

CauseText notPermittedText(const DeviceAccess &access)
{
    if (!access.ruleInstalled)
        return {localized(u"此电脑不允许您使用打印机：缺少规则 60-wifitool.rules。"_s),
                localized(u"请重新安装带有此规则的 wifitool 软件包，拔下 USB 数据线再插上，然后再试一次。"_s)};
    if (!access.isOnSeat)
        return {localized(u"只有直接在此电脑前登录的人才能使用打印机。您的会话是远程的，或是以其他方式启动的。"_s),
                localized(u"请直接在此电脑上登录后再试一次，或请管理员帮忙。"_s)};
    return {localized(u"此电脑还没有允许您使用打印机。"_s),
            localized(u"请拔下 USB 数据线再插上，等待几秒，然后再试一次。如果没有用，请重新启动电脑。"_s)};
}

QString reconnectAdvice()
{
    return localized(u"请打开打印机并插好数据线，等它准备就绪后再试一次。完成之前请不要拔线。"_s);
}

CauseText noAnswerText(quint16 command)
{
    const auto seconds = PrinterExchange::timeoutOf(command).count();
    return {formatText(localized(u"打印机在 %d 秒内没有响应（步骤：%@）。"_s), {seconds, stepName(command)}),
            localized(u"打印机可能在休眠或正忙：请按一下打印机上的任意键，等它准备就绪后再试一次。如果没有用，"
                      u"请关闭打印机，10 秒后再打开。"_s)};
}

CauseText busText(const UsbCause &cause, quint16 command, const DeviceAccess &access)
{
    switch (cause.code) {
    case UsbErrorCode::NotFound:
        return {localized(u"在 USB 上找不到打印机。"_s), reconnectAdvice()};
    case UsbErrorCode::PermissionDenied:
        return notPermittedText(access);
    case UsbErrorCode::Busy:
        return heldText(cause);
    case UsbErrorCode::Unplugged:
        return {atStep(u"打印机被拔下或关闭了（步骤：%@）。"_s, command), reconnectAdvice()};
    case UsbErrorCode::TimedOut:
        return noAnswerText(command);
    case UsbErrorCode::Stalled:
    case UsbErrorCode::Cancelled:
    case UsbErrorCode::Overflow:
    case UsbErrorCode::Failed:
        break;
    }
    return {
        atStep(u"与打印机的 USB 通信出错（步骤：%@）。"_s, command),
        localized(u"请把打印机直接接到电脑的另一个 USB 接口（不要经过集线器），最好换一根数据线，然后再试一次。"_s)};
}

CauseText localizedText(const FailureText &failure)
{
    return {localized(failure.text), localized(failure.advice)};
}

/// The printer took a configuration's bytes and said no.
CauseText refusedText(ConfigurationResult result)
{
    switch (result) {
    case ConfigurationResult::InterfaceFault:
    case ConfigurationResult::InterfaceFaultFFFF:
        return localizedText(failureText(true, false, {}));
    case ConfigurationResult::Upgrading:
        return localizedText(failureText(false, true, CapabilityReason::Upgrading));
    case ConfigurationResult::None:
    case ConfigurationResult::Joined:
        break;
    }
    return {localized(u"打印机拒绝了网络设置，最可能的原因是密码不对。"_s),
            localized(u"请检查密码（区分大小写）。许多打印机只支持 2.4 GHz，不支持 5 GHz。如果打印机离路由器太远，"
                      u"请移近一些。然后再试一次。"_s)};
}

CauseText resultText(int result, quint16 command)
{
    if (command == PrinterCommand::wifiConfiguration)
        return refusedText(static_cast<ConfigurationResult>(result));
    switch (static_cast<CapabilityResult>(result)) {
    case CapabilityResult::InterfaceFault:
    case CapabilityResult::WiFiFault:
    case CapabilityResult::NoWiFiModule:
        return {}; // The headline and advice of the failure screen say it all.
    default:
        return {localized(u"打印机没有说明能否配置 Wi-Fi。"_s), restartAdvice()};
    }
}

CauseText replyText(int status, quint16 command)
{
    switch (static_cast<WTPrinterStatus>(status)) {
    case WTPrinterStatus::NoData:
    case WTPrinterStatus::NoValidAddress:
        return {localized(u"打印机收到了设置，但没有从路由器得到地址。"_s),
                localized(u"最可能的原因是密码不对、网络只有 5 GHz，或路由器太远：请检查后再试一次。如果都没有问题，"
                          u"请重新启动路由器，并查看它是否只允许已知的设备。"_s)};
    case WTPrinterStatus::Success:
    case WTPrinterStatus::NoHeader:
    case WTPrinterStatus::LibraryError31:
    case WTPrinterStatus::CommandMismatch:
    case WTPrinterStatus::DataTooShort:
        break;
    }
    return {atStep(u"打印机给出了意外的响应（步骤：%@）。"_s, command), restartAdvice()};
}

} // namespace

CauseText causeText(const WTError &error, quint16 command, const DeviceAccess &access)
{
    if (error.cause)
        return busText(*error.cause, command, access);
    if (error.domain == printerResultDomain)
        return resultText(error.code, command);
    if (error.domain == printerErrorDomain)
        return replyText(error.code, command);
    return {};
}

CauseText causeText(const RunCause &cause, const DeviceAccess &access)
{
    CauseText text = causeText(cause.error, commandOf(cause.step), access);
    text.details =
        formatText("%@: %@ %d, %@", logName(cause.step), cause.error.domain, cause.error.code, cause.error.message);
    return text;
}
