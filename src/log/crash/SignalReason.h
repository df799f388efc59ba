#pragma once

#include <QString>
#include <array>
#include <csignal>

/// The signals that are reported, in the order in which their handlers are installed.
inline constexpr std::array reportedSignals{SIGFPE,  SIGBUS,  SIGHUP,  SIGINT,  SIGILL, SIGPIPE,
                                            SIGQUIT, SIGABRT, SIGSEGV, SIGTRAP, SIGALRM};

/// What a report gives as the reason; a signal without a text of its own has no final line feed.
QString signalReason(int signal);
