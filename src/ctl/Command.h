#pragma once

#include "ExitCode.h"

#include <QObject>

/// One subcommand at work. Main thread.
class Command : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Begins; `done` comes later or at once.
    virtual void start() = 0;

    /// The person or the session wants the program to end: says how things stand and leaves the rest.
    /// @returns what the program is to end with.
    virtual ExitCode breakOff() { return ExitCode::BrokenOff; }

Q_SIGNALS:
    void done(ExitCode code);
};
