// Part of every program that is built with ThreadSanitizer.
//
// Qt starts a process with clone(), and until its child has become the other program, both share their memory. The
// sanitizer's wrappers of the system's functions note in that memory that they are at work for a library; the wrapper
// of execve() never returns to take the note back, and from then on no lock of the starting thread would count. So the
// child gets a copy of the memory, as from fork().
#include <csignal>
#include <cstdarg>
#include <dlfcn.h>
#include <sched.h>
#include <sys/types.h>

extern "C" __attribute__((visibility("default"))) int clone(int (*start)(void *), void *stack, int flags,
                                                            void *argument, ...)
{
    va_list rest;
    va_start(rest, argument);
    auto *const parentId = va_arg(rest, pid_t *);
    void *const threadStorage = va_arg(rest, void *);
    auto *const childId = va_arg(rest, pid_t *);
    va_end(rest);
    using Clone = int (*)(int (*)(void *), void *, int, void *, ...);
    const auto next = reinterpret_cast<Clone>(::dlsym(RTLD_NEXT, "clone"));
    return next(start, stack, flags & ~(CLONE_VM | CLONE_VFORK), argument, parentId, threadStorage, childId);
}
