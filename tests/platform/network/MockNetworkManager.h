#pragma once

#include <QJsonArray>
#include <QProcess>

/// The mock NetworkManager as a child process on a private system bus, which this process then uses too. One a program.
class MockNetworkManager
{
public:
    MockNetworkManager();
    ~MockNetworkManager();

    /// One operation of mock_networkmanager.py; fails the test program when the mock refuses it.
    void tell(const QJsonArray &operation);
    void tell(const QList<QJsonArray> &operations);

private:
    QByteArray readLine();
    QProcess m_process;
};
