// SPDX-License-Identifier: Apache-2.0
// Lets ThreadSanitizer see how a thread pool of a Qt that is not instrumented hands work over.
//
// The work is queued inside of the library, so that whatever it was made of may look like a race.
// This definition stands before the library's, and adds what the sanitizer must know.
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

} // namespace

void QThreadPool::start(QRunnable* runnable, int priority)
{
    static const auto inLibrary =
        reinterpret_cast<Start>(dlsym(RTLD_NEXT, "_ZN11QThreadPool5startEP9QRunnablei"));
    __tsan_release(runnable);
    inLibrary(this, new HandedOver(runnable), priority);
}
