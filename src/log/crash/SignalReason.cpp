#include "SignalReason.h"

#include "TextFormat.h"

using namespace Qt::Literals::StringLiterals;

QString signalReason(int signal)
{
    switch (signal) {
    case SIGHUP:
        return u"Signal SIGHUP was raised!\n"_s;
    case SIGINT:
        return u"Signal SIGINT was raised!\n"_s;
    case SIGQUIT:
        return u"Signal SIGQUIT was raised!\n"_s;
    case SIGILL:
        return u"Signal SIGILL was raised!\n"_s;
    case SIGABRT:
        return u"Signal SIGABRT was raised!\n"_s;
    case SIGFPE:
        return u"Signal SIGFPE was raised!\n"_s;
    case SIGBUS:
        return u"Signal SIGBUS was raised!\n"_s;
    case SIGSEGV:
        return u"Signal SIGSEGV was raised!\n"_s;
    case SIGPIPE:
        return u"Signal SIGPIPE was raised!\n"_s;
    case SIGALRM:
        return u"Signal SIGALRM was raised!\n"_s;
    default:
        return formatText(u"Signal %d was raised!", {signal});
    }
}
