#pragma once

#include <QtGlobal>

/// What a message is; one bit each. A logger admits the flags whose bits are set in its level.
enum WTLogFlag : quint64 {
    WTLogFlagError = 1,
    WTLogFlagWarning = 2,
    WTLogFlagInfo = 4,
    WTLogFlagDebug = 8,
    WTLogFlagVerbose = 16,
};

/// Admits every flag.
inline constexpr quint64 WTLogLevelAll = ~quint64{0};

/// How a message keeps the texts it was made from. Kept with the message, but without effect: texts share their
/// storage, so a copy and the original always read the same.
enum WTLogMessageOption : quint64 {
    WTLogMessageCopyFile = 1,
    WTLogMessageCopyFunction = 2,
    WTLogMessageDontCopyMessage = 4,
};
