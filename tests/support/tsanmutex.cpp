// SPDX-License-Identifier: Apache-2.0
// Lets ThreadSanitizer see the mutexes of a Qt that is not instrumented.
//
// They are locked inside of the library, so that everything they guard may look like a race. These
// definitions stand before the library's, and add what the sanitizer must know.
#include <QMutex>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

using Function = void (*)(QMutex*);

Function libraryFunction(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static const Function inLibrary = libraryFunction("_ZN6QMutex4lockEv");
    inLibrary(this);
    __tsan_acquire(this);
}

void QMutex::unlock() noexcept
{
    static const Function inLibrary = libraryFunction("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    inLibrary(this);
}
