#include "WTExceptionHandler.h"

#include "AlternateSignalStack.h"
#include "CrashReport.h"
#include "CrashReporter.h"
#include "SignalReason.h"
#include "typeName.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cxxabi.h>
#include <exception>
#include <execinfo.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// A fault of the current thread: the signal and the address that the system gives with it.
struct Fault {
    int signal = 0;
    const void *address = nullptr;
    bool operator==(const Fault &) const = default;
};

thread_local Fault lastFault;

std::atomic<int> statusAfterFault = EXIT_SUCCESS;

/// Whether an instruction of the thread caused the signal; nobody sent it.
bool comesFromInstruction(const siginfo_t &info)
{
    return info.si_code > 0;
}

/// Whether the system will repeat the instruction that caused the signal.
bool comesFromRepeatedInstruction(int signal, const siginfo_t &info)
{
    constexpr std::array faults{SIGFPE, SIGILL, SIGBUS};
    return comesFromInstruction(info) && std::ranges::find(faults, signal) != faults.end();
}

void restoreDefaultAction(int signal)
{
    struct sigaction action {
    };
    action.sa_handler = SIG_DFL;
    sigaction(signal, &action, nullptr);
}

[[noreturn]] void abortWithoutReport()
{
    restoreDefaultAction(SIGABRT);
    std::abort();
}

void handleSignal(int signal, siginfo_t *info, void * /*context*/)
{
    const int savedError = errno;
    const Fault fault{signal, info->si_addr};
    const bool isFault = comesFromRepeatedInstruction(signal, *info);
    if (isFault && fault == lastFault) {
        restoreDefaultAction(signal);
        return;
    }
    if (isFault)
        lastFault = fault;
    Crash crash = Crash::ofCurrentThread();
    crash.signal = signal;
    CrashReporter::report(crash);
    if (signal == SIGSEGV)
        _exit(statusAfterFault);
    if (signal == SIGTRAP && comesFromInstruction(*info))
        abortWithoutReport();
    errno = savedError;
}

QString reasonOfCurrentException()
{
    try {
        if (std::current_exception())
            throw;
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return u"an exception without a text"_s;
    }
    return u"terminated without an exception"_s;
}

[[noreturn]] void handleException()
{
    Crash crash = Crash::ofCurrentThread();
    const std::type_info *type = abi::__cxa_current_exception_type();
    crash.exceptionName = type ? typeName(*type) : u"std::terminate"_s;
    crash.exceptionReason = reasonOfCurrentException();
    CrashReporter::report(crash);
    if (crash.exceptionReason.contains(u"SIGSEGV"_s))
        std::_Exit(statusAfterFault);
    abortWithoutReport();
}

/// The main thread's stack for signal handlers. Other threads of the program make their own where they begin.
void giveMainThreadItsSignalStack()
{
    [[maybe_unused]] static const auto *const stack = new AlternateSignalStack;
}

/// The first call of the system's backtrace loads a library, which is no work for a signal handler.
void loadBacktrace()
{
    void *address = nullptr;
    ::backtrace(&address, 1);
}

} // namespace

void WTExceptionHandler::uncaughtExceptionHandler()
{
    loadBacktrace();
    CrashReporter::start();
    giveMainThreadItsSignalStack();
    std::set_terminate(&handleException);
    struct sigaction action {
    };
    action.sa_sigaction = &handleSignal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK | SA_RESTART;
    sigfillset(&action.sa_mask);
    for (const int signal : reportedSignals)
        sigaction(signal, &action, nullptr);
}

void WTExceptionHandler::setStatusAfterFault(int status)
{
    statusAfterFault = status;
}

QStringList WTExceptionHandler::backtrace()
{
    return Crash::ofCurrentThread().symbols();
}
