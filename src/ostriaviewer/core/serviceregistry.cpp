// SPDX-License-Identifier: Apache-2.0
// Where the host's services are found.
#include "serviceregistry.h"

namespace Core::Service {

bool CServiceRegistry::add(const ServicePtr& service)
{
    const QWriteLocker locker(&m_lock);
    if (!service || m_services.contains(service))
        return false;
    m_services.append(service);
    return true;
}

bool CServiceRegistry::remove(const ServicePtr& service)
{
    const QWriteLocker locker(&m_lock);
    return m_services.removeOne(service);
}

} // namespace Core::Service
