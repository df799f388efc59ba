#include "WTManager.h"

#include "Log.h"

namespace
{

TimePort *&timePort()
{
    static TimePort *port = nullptr;
    return port;
}

} // namespace

void WTManager::usePorts(TimePort &time)
{
    timePort() = &time;
}

WTManager &WTManager::shared()
{
    static WTManager *const instance = new WTManager;
    return *instance;
}

WTManager::WTManager()
{
    getInstallList();
}

QString WTManager::logPath() const
{
    const std::lock_guard lock{m_mutex};
    return m_logPath;
}

void WTManager::setLogPath(const QString &path)
{
    logDebug("设置中间日志的路径：%@", path);
    const std::lock_guard lock{m_mutex};
    m_logPath = path;
}

void WTManager::getInstallList()
{
    setInstallFileList({});
    const auto catalogue = ModelCatalogue::readConfigured();
    if (catalogue)
        setInstallFileList(catalogue.value().entries());
    else
        logWarning("Every printer is offered, since there is no catalogue: %@", catalogue.error().message);
}

QJsonArray WTManager::installFileList() const
{
    return catalogue().entries();
}

void WTManager::setInstallFileList(const QJsonArray &entries)
{
    const std::lock_guard lock{m_mutex};
    m_catalogue = ModelCatalogue{entries};
}

ModelCatalogue WTManager::catalogue() const
{
    const std::lock_guard lock{m_mutex};
    return m_catalogue;
}

bool WTManager::isVaildFile(const QString &printerType) const
{
    return catalogue().isVaildFile(printerType);
}

bool WTManager::isWifiPrinter(const QString &printerType) const
{
    return catalogue().isWifiPrinter(printerType);
}

bool WTManager::oldAclPrinter(const QString &printerType) const
{
    return catalogue().oldAclPrinter(printerType);
}

TimePort &WTManager::time() const
{
    return *timePort();
}
