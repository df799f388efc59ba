#pragma once

#include "EmulatedCommand.h"
#include "Locked.h"
#include "PrinterAnswer.h"
#include "ResourceFolder.h"
#include "UsbTestBed.h"

#include <QThread>

/// The manager's operations, each by the command it sends.
enum class Operation : quint16 {
    WakeUp = EmulatedCommand::WakeUp,
    Capability = EmulatedCommand::Capability,
    Configuration = EmulatedCommand::Configuration,
    Address = EmulatedCommand::Address,
    InformationPage = EmulatedCommand::InformationPage,
};

/// What an operation's callback was given, as one text, and how it was called.
struct Answer {
    int calls = 0;
    QString text;
    QThread *thread = nullptr;
};

/// An answer that is written on any thread.
class PendingAnswer
{
public:
    void give(int status, const QString &text)
    {
        m_given.change([&](Answer &given) {
            given = {given.calls + 1, QStringLiteral("%1, %2").arg(status).arg(text), QThread::currentThread()};
        });
    }
    void give(const ResultAnswer &answer)
    {
        give(static_cast<int>(answer.status), QStringLiteral("0x%1").arg(answer.result, 0, 16));
    }
    Answer soFar() const
    {
        return m_given.read([](const Answer &given) { return given; });
    }

private:
    Locked<Answer> m_given;
};

/// What the configurations of these tests tell the printer.
inline const QString networkName = QStringLiteral("Harbour guests, second floor");
inline const QString networkPassword = QStringLiteral("correct horse battery staple");

/// Whether a line shows a part of the network's password, as text or as bytes.
bool tellsSecret(const QStringList &lines);

/// Begins the operation; its answer fills when it calls back.
std::shared_ptr<PendingAnswer> start(Operation operation, const QString &uri);

/// A printer that has joined its network and does this to the operation's command.
PrinterScript scriptWith(Operation operation, PrinterFault fault);

/// The manager on a machine with one emulated printer: real library, real libusb, virtual time. One per process.
class PrinterBed : public UsbTestBed
{
public:
    PrinterBed();

    /// Lets the search find the printer and ends it. @return whether it was found.
    bool discover();
    /// The URI of the printer found, also while it is unplugged.
    QString uri() const { return m_uri; }

    /// Runs the operation on the printer found until it has answered.
    Answer perform(Operation operation);

    /// As new: plugged, free, permitted, with this script.
    void reset(const PrinterScript &script = {});

private:
    ResourceFolder m_resources;
    QString m_uri;
};
