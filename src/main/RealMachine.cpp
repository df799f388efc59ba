#include "RealMachine.h"

#include "CupsSpooler.h"
#include "LibusbPort.h"
#include "LinuxDesktop.h"
#include "NetworkManagerWiFi.h"
#include "SystemTime.h"
#include "detectHostCapabilities.h"

#include <QThread>

namespace
{

struct Ports {
    const HostCapabilities capabilities = detectHostCapabilities();
    SystemTime time;
    LibusbPort usb{time};
    CupsSpooler spooler{capabilities};
    LinuxDesktop desktop;
    NetworkManagerWiFi hostWiFi{time};
};

} // namespace

Machine realMachine()
{
    // The toolkit takes the first thread that it meets for the main one, and the ports begin some work on others.
    QThread::currentThread();
    static auto *const ports = new Ports;
    return {ports->usb, ports->time, ports->spooler, ports->desktop, ports->hostWiFi, ports->capabilities};
}
