#pragma once

#include <QtGlobal>

/// What the list screen does once the host has said whether networks may be looked for.
struct PermissionAnswer {
    enum class Step {
        Look,         ///< The networks are looked for.
        AskPerson,    ///< An alert asks for the permission; nothing is looked for.
        LeaveAndLook, ///< Back to the previous screen, then as `LookAnyway`. Deliberate.
        LookAnyway,   ///< Logged as unknown; the networks are looked for.
    };

    Step step;
    const char *line; ///< For the log; null where only the line about an unknown status is written.
};

/// @param status of the permission checker: 0 not determined, 1 restricted, 2 denied, 3 allowed, others unknown.
PermissionAnswer permissionAnswer(qint32 status);
