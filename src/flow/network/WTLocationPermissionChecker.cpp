#include "WTLocationPermissionChecker.h"

#include "HostWiFiPort.h"
#include "Log.h"
#include "MainThread.h"

#include <QPointer>
#include <utility>

namespace
{

const char *statusText(qint32 status)
{
    switch (status) {
    case static_cast<qint32>(ScanPermission::NotDetermined):
        return "定位权限：未确定（用户尚未做出选择）";
    case static_cast<qint32>(ScanPermission::Restricted):
        return "定位权限：受限制（可能由家长控制等设置限制）";
    case static_cast<qint32>(ScanPermission::Denied):
        return "定位权限：被拒绝（用户明确拒绝或系统设置禁止）";
    case static_cast<qint32>(ScanPermission::Allowed):
        return "定位权限：始终允许";
    default:
        return "定位权限：未知状态";
    }
}

} // namespace

WTLocationPermissionChecker::WTLocationPermissionChecker(HostWiFiPort &locationManager)
    : m_locationManager(locationManager)
{
    m_locationManager.watchScanPermission([checker = QPointer(this)] {
        onMainThread([checker] {
            if (checker)
                checker->locationManagerDidChangeAuthorization();
        });
    });
}

WTLocationPermissionChecker::~WTLocationPermissionChecker()
{
    m_locationManager.watchScanPermission({});
}

void WTLocationPermissionChecker::checkLocationPermission(LocalStatus callBack)
{
    m_localStatus = std::move(callBack);
    printPermissionStatus(static_cast<qint32>(m_locationManager.scanPermission()), {});
}

void WTLocationPermissionChecker::locationManagerDidChangeAuthorization()
{
    logInfo("定位权限发生变化：");
    // A copy, because the callback may end the wait, and with it this checker.
    const LocalStatus localStatus = m_localStatus;
    printPermissionStatus(static_cast<qint32>(m_locationManager.scanPermission()), localStatus);
}

void WTLocationPermissionChecker::printPermissionStatus(qint32 status, const LocalStatus &localStatus)
{
    logInfo(statusText(status));
    if (localStatus)
        localStatus(status);
}
