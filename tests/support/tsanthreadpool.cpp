// SPDX-License-Identifier: Apache-2.0
// Lets ThreadSanitizer see how a thread pool of a Qt that is not instrumented hands work over.
//
// The work is queued inside of the library, and so is the word that it is done, so that whatever it
// was made of, or worked on, may look like a race. These definitions stand before the library's,
// and add what the sanitizer must know.
#include <QFutureInterface>
#include <QRunnable>
#include <QThreadPool>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

namespace {

using Start = void (*)(QThreadPool*, QRunnable*, int);

class HandedOver : public QRunnable
{
public:
    __attribute__((no_sanitize("thread"))) explicit HandedOver(QRunnable* work)
        : m_work(work)
    {}

    __attribute__((no_sanitize("thread"))) void run() override
    {
        __tsan_acquire(m_work);
        const bool owned = m_work->autoDelete();
        m_work->run();
        if (owned)
            delete m_work;
    }

private:
    QRunnable* m_work;
};

template <typename Function>
Function libraryFunction(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

void QThreadPool::start(QRunnable* runnable, int priority)
{
    static const auto inLibrary = libraryFunction<Start>("_ZN11QThreadPool5startEP9QRunnablei");
    __tsan_release(runnable);
    inLibrary(this, new HandedOver(runnable), priority);
}

// All futures of one piece of work share its mutex.
void QFutureInterfaceBase::reportFinished()
{
    static const auto inLibrary = libraryFunction<void (*)(QFutureInterfaceBase*)>(
        "_ZN20QFutureInterfaceBase14reportFinishedEv");
    __tsan_release(mutex());
    inLibrary(this);
}

void QFutureInterfaceBase::waitForFinished()
{
    static const auto inLibrary = libraryFunction<void (*)(QFutureInterfaceBase*)>(
        "_ZN20QFutureInterfaceBase15waitForFinishedEv");
    inLibrary(this);
    __tsan_acquire(mutex());
}
