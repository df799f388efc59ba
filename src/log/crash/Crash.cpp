#include "Crash.h"

#include "SerialQueue.h"

#include <cstdlib>
#include <execinfo.h>
#include <memory>
#include <sys/prctl.h>
#include <unistd.h>

Crash Crash::ofCurrentThread()
{
    Crash crash;
    crash.addressCount = ::backtrace(crash.addresses.data(), mostAddresses);
    crash.systemThread = gettid();
    prctl(PR_GET_NAME, crash.threadName.data());
    crash.queueLabel = SerialQueue::currentLabel();
    return crash;
}

QStringList Crash::symbols() const
{
    const std::unique_ptr<char *, decltype(&std::free)> texts(backtrace_symbols(addresses.data(), addressCount),
                                                              &std::free);
    QStringList symbols;
    for (int index = 0; texts && index < addressCount; ++index)
        symbols.append(QString::fromUtf8(texts.get()[index]));
    return symbols;
}
