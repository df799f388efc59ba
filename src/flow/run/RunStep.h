#pragma once

#include <QString>

/// Where a run stands.
enum class RunStep {
    Idle,
    Waking,
    Checking,
    Sending,
    WaitingForAddress,
    Ended,
};

/// How often a run asks for the printer's address.
inline constexpr int addressQueries = 7;

/// The step in English, for the log.
QString logName(RunStep step);

/// The step in the interface language, for people; empty for a run that is not under way.
/// @param attempt which address query is under way, from 0.
QString stepLine(RunStep step, int attempt);
