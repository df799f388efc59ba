#pragma once

#include "EmulatedCommand.h"
#include "Locked.h"
#include "PrinterAnswer.h"
#include "PrinterScript.h"

#include <QString>
#include <QStringList>
#include <memory>

class QThread;

/// The manager's operations, each by the command it sends.
enum class Operation : quint16 {
    WakeUp = EmulatedCommand::WakeUp,
    Capability = EmulatedCommand::Capability,
    Configuration = EmulatedCommand::Configuration,
    Address = EmulatedCommand::Address,
    InformationPage = EmulatedCommand::InformationPage,
};

/// What an operation's callback was given, as one text, and how it was called. Written on any thread.
class Answer
{
public:
    void give(int status, const QString &text);
    void give(const ResultAnswer &answer)
    {
        give(static_cast<int>(answer.status), QStringLiteral("0x%1").arg(answer.result, 0, 16));
    }

    int calls() const;
    QString text() const;
    bool wasGivenOn(const QThread *thread) const;

private:
    struct Given {
        int calls = 0;
        QString text;
        QThread *thread = nullptr;
    };
    Locked<Given> m_given;
};

/// What the configurations of these tests tell the printer.
inline const QString networkName = QStringLiteral("Harbour guests, second floor");
inline const QString networkPassword = QStringLiteral("correct horse battery staple");

/// Whether a line shows a part of the network's password, as text or as bytes.
bool tellsSecret(const QStringList &lines);

/// Begins the operation; its answer fills when it calls back.
std::shared_ptr<Answer> start(Operation operation, const QString &uri);

/// A printer that has joined its network and does this to the operation's command.
PrinterScript scriptWith(Operation operation, PrinterFault fault);
