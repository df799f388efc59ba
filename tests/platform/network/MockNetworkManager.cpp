#include "MockNetworkManager.h"

#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;

MockNetworkManager::MockNetworkManager()
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(u"/usr/bin/python3"_s, {QStringLiteral(MOCK_NETWORKMANAGER)});
    const QByteArray address = readLine();
    if (address.isEmpty())
        qFatal("the mock NetworkManager did not start");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
}

MockNetworkManager::~MockNetworkManager()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

void MockNetworkManager::tell(const QJsonArray &operation)
{
    m_process.write(QJsonDocument(operation).toJson(QJsonDocument::Compact) + '\n');
    const QByteArray answer = readLine();
    if (answer != "ok")
        qFatal("the mock NetworkManager answered: %s", answer.constData());
}

void MockNetworkManager::tell(const QList<QJsonArray> &operations)
{
    for (const QJsonArray &operation : operations)
        tell(operation);
}

QByteArray MockNetworkManager::readLine()
{
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead())
            return {};
    }
    return m_process.readLine().trimmed();
}
