#pragma once

#include <QObject>
#include <memory>

class QSocketNotifier;

/// SIGTERM, by which a session or a service manager asks a program to end, as a signal of the main thread. One at a
/// time; once it is gone, SIGTERM ends the process as ever.
class TerminationRequest : public QObject
{
    Q_OBJECT

public:
    TerminationRequest();
    ~TerminationRequest() override;

Q_SIGNALS:
    void arrived();

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};
