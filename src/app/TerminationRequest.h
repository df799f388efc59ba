#pragma once

#include <QObject>
#include <csignal>
#include <memory>
#include <vector>

class QSocketNotifier;

/// The signals by which a session, a service manager or a person at a terminal asks a program to end, as a signal of
/// the main thread. One at a time; once it is gone, they end the process as ever. A signal that the program was started
/// to ignore (nohup) stays ignored.
class TerminationRequest : public QObject
{
    Q_OBJECT

public:
    explicit TerminationRequest(std::vector<int> signals = {SIGTERM});
    ~TerminationRequest() override;

Q_SIGNALS:
    void arrived();

private:
    std::vector<int> m_signals; ///< Those that are caught.
    std::unique_ptr<QSocketNotifier> m_notifier;
};
