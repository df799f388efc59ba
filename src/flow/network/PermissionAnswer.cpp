#include "PermissionAnswer.h"

#include "HostWiFiPort.h"

PermissionAnswer permissionAnswer(qint32 status)
{
    using enum PermissionAnswer::Step;
    switch (status) {
    case static_cast<qint32>(ScanPermission::NotDetermined):
        return {AskPerson, "定位服务：用户尚未做出选择（触发时机：首次请求定位权限时）"};
    case static_cast<qint32>(ScanPermission::Restricted):
        return {LeaveAndLook, "定位服务：设备限制导致无法获取定位（触发时机：家长控制/设备策略限制）"};
    case static_cast<qint32>(ScanPermission::Denied):
        return {AskPerson, "定位服务：用户明确拒绝或系统定位服务关闭（触发时机：用户明确拒绝或系统定位服务关闭）"};
    case static_cast<qint32>(ScanPermission::Allowed):
        return {Look, "定位服务：获得持续定位权限（触发时机：用户同意“允许”定位服务）"};
    default:
        return {LookAnyway, nullptr};
    }
}
