#include "FailureText.h"

using namespace Qt::Literals::StringLiterals;

namespace
{

FailureText anyFailure()
{
    return {u"配网失败"_s,
            u"请检查打印机是否已开机、数据线是否插好、网络名称和密码是否正确，然后重新打开本工具再试一次。"_s};
}

FailureText capabilityText(CapabilityReason reason)
{
    switch (reason) {
    case CapabilityReason::NoWiFiModule:
        return {u"打印机配置失败，当前打印机Wi-Fi模块未装配，无法进行配网。"_s,
                u"这台打印机没有安装Wi-Fi模块。请继续使用USB数据线打印，或向经销商咨询Wi-Fi模块。"_s};
    case CapabilityReason::WiFiFault:
        return {u"Wi-Fi故障，打印机配置失败。"_s,
                u"请关闭打印机，等待10秒后重新打开，再试一次。如果问题依旧，请联系售后服务。"_s};
    case CapabilityReason::Upgrading:
        return {u"打印机配置失败，系统升级过程中，不允许配置网络。"_s,
                u"请等待打印机升级完成，期间不要关闭电源，然后再试一次。"_s};
    case CapabilityReason::Unknown:
        break;
    }
    return anyFailure(); // A reason without a name, too.
}

} // namespace

FailureText failureText(bool showInterfaceError, bool showWiFiCapabilityError, CapabilityReason wifiCapabilityError)
{
    if (showWiFiCapabilityError)
        return capabilityText(wifiCapabilityError);
    if (showInterfaceError)
        return {u"打印机配置失败，当前打印机网络未开启，无法进行配网。"_s,
                u"请在打印机上打开Wi-Fi功能，重新启动打印机，然后再试一次。"_s};
    return anyFailure();
}
