// SPDX-License-Identifier: Apache-2.0
// Anything that the host offers to its plugins.
#pragma once

#include "coreexport.h"

#include <QObject>
#include <QSharedPointer>

namespace Core::Service {

/// The base of all services. Lives in the GUI thread unless its interface says otherwise.
class OSTRIAVIEWER_CORE_EXPORT IService : public QObject
{
    Q_OBJECT

public:
    ~IService() override;

protected:
    using QObject::QObject;
};

using ServicePtr = QSharedPointer<IService>;

} // namespace Core::Service
