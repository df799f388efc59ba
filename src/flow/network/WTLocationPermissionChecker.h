#pragma once

#include <QObject>
#include <functional>

class HostWiFiPort;

/// Asks whether the program may look for networks, and reports every change of the answer while it lives. Main thread.
class WTLocationPermissionChecker : public QObject
{
    Q_OBJECT

public:
    /// 0 not determined, 1 restricted, 2 denied, 3 allowed; anything else is unknown.
    using LocalStatus = std::function<void(qint32 status)>;

    /// Becomes the host's listener; a first notification follows as soon as the permission is known.
    explicit WTLocationPermissionChecker(HostWiFiPort &locationManager);
    ~WTLocationPermissionChecker() override;

    /// Logs the present status and keeps `callBack`, which only the later notifications call. There is nothing to ask
    /// for: a host that has not decided yet asks the person by itself when networks are looked for.
    void checkLocationPermission(LocalStatus callBack);

    /// The host notifies of an answer or of a change of it.
    void locationManagerDidChangeAuthorization();

    /// Logs the status in words and hands it to `localStatus`, which may be empty.
    static void printPermissionStatus(qint32 status, const LocalStatus &localStatus);

private:
    HostWiFiPort &m_locationManager;
    LocalStatus m_localStatus;
};
