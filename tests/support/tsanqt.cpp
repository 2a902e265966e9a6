// SPDX-License-Identifier: Apache-2.0
// Lets ThreadSanitizer see the mutexes, threads and calls across threads of a Qt that is not
// instrumented.
//
// Mutexes are locked and threads waited for inside of the library, so that everything they guard
// may look like a race. These definitions stand before the library's, and add what the sanitizer
// must know.
#include <QDeadlineTimer>
#include <QMutex>
#include <QThread>

#include <climits>
#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

// What the libraries do among themselves is not seen whole, so nothing is said of it.
extern "C" __attribute__((visibility("default"))) const char* __tsan_default_options()
{
    return "ignore_noninstrumented_modules=1";
}

namespace {

template <typename Function>
Function libraryFunction(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto inLibrary = libraryFunction<void (*)(QMutex*)>("_ZN6QMutex4lockEv");
    inLibrary(this);
    __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT
{
    static const auto inLibrary = libraryFunction<bool (*)(QMutex*, int)>("_ZN6QMutex7tryLockEi");
    const bool isLocked = inLibrary(this, timeout);
    if (isLocked)
        __tsan_acquire(this);
    return isLocked;
}

void QMutex::unlock() noexcept
{
    static const auto inLibrary = libraryFunction<void (*)(QMutex*)>("_ZN6QMutex6unlockEv");
    __tsan_release(this);
    inLibrary(this);
}

void QThread::start(Priority priority)
{
    static const auto inLibrary =
        libraryFunction<void (*)(QThread*, Priority)>("_ZN7QThread5startENS_8PriorityE");
    // Emitted on the thread that ends, behind all that it has done.
    QObject::connect(
        this, &QThread::finished, this, [this] { __tsan_release(this); }, Qt::DirectConnection);
    inLibrary(this, priority);
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto inLibrary =
        libraryFunction<bool (*)(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool hasEnded = inLibrary(this, deadline);
    if (hasEnded)
        __tsan_acquire(this);
    return hasEnded;
}

bool QThread::wait(unsigned long time)
{
    return wait(time == ULONG_MAX ? QDeadlineTimer(QDeadlineTimer::Forever)
                                  : QDeadlineTimer(static_cast<qint64>(time)));
}

namespace {

/// A call that waits in another thread's event queue, which hands it over under a mutex that only
/// the library sees.
class HandedCall : public QtPrivate::QSlotObjectBase
{
public:
    explicit HandedCall(QSlotObjectBase* call)
        : QSlotObjectBase(&HandedCall::act)
        , m_call(call)
    {
        __tsan_release(this);
    }

private:
    static void act(int which, QSlotObjectBase* self, QObject* receiver, void** arguments,
                    bool* isEqual)
    {
        __tsan_acquire(self);
        auto* handed = static_cast<HandedCall*>(self);
        switch (which) {
        case Destroy:
            handed->m_call->destroyIfLastRef();
            delete handed;
            break;
        case Call:
            handed->m_call->call(receiver, arguments);
            break;
        default:
            *isEqual = false;
        }
    }

    QSlotObjectBase* m_call;
};

} // namespace

bool QMetaObject::invokeMethodImpl(QObject* object, QtPrivate::QSlotObjectBase* slot,
                                   Qt::ConnectionType type, void* result)
{
    using Function = bool (*)(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*);
    static const auto inLibrary = libraryFunction<Function>(
        "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt"
        "14ConnectionTypeEPv");
    return inLibrary(object, new HandedCall(slot), type, result);
}
