// SPDX-License-Identifier: Apache-2.0
// Access to the features of any camera.
#pragma once

#include "coreexport.h"
#include "icamerainfo.h"
#include "iparametercollection.h"
#include "iservice.h"

namespace Plugin::ParameterCollectionPool {

/// Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT IParameterService : public Core::Service::IService
{
    Q_OBJECT

public:
    /// \return  the camera's features; null if it is closed
    virtual Core::ParameterCollection::ParameterCollectionPtr
    parameterCollection(const Core::CameraPoolComponents::CameraInfoPtr& camera) = 0;

protected:
    using IService::IService;
};

} // namespace Plugin::ParameterCollectionPool
