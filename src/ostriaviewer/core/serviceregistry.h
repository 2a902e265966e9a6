// SPDX-License-Identifier: Apache-2.0
// Where the host's services are found.
#pragma once

#include "coreexport.h"
#include "iservice.h"

#include <QList>
#include <QReadWriteLock>
#include <QSharedPointer>

namespace Core::Service {

/// The list of all services. Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT CServiceRegistry
{
public:
    /// \return  false if it is null or stands in the list already
    bool add(const ServicePtr& service);

    /// \return  false if it does not stand in the list
    bool remove(const ServicePtr& service);

    /// For a walk through services(): hold it for reading.
    QReadWriteLock& lock() const { return m_lock; }

    /// All services, in the order in which they were added. Hold the lock.
    const QList<ServicePtr>& services() const { return m_services; }

    /// The first service with this interface, null if there is none. Takes the lock.
    template <typename Interface>
    QSharedPointer<Interface> find() const
    {
        const QReadLocker locker(&m_lock);
        for (const ServicePtr& service : m_services)
            if (auto match = service.template dynamicCast<Interface>())
                return match;
        return {};
    }

private:
    mutable QReadWriteLock m_lock;
    QList<ServicePtr> m_services;
};

} // namespace Core::Service
