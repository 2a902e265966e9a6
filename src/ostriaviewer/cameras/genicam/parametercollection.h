// SPDX-License-Identifier: Apache-2.0
// The features of a node map as the host's parameters.
#pragma once

#include "iparametercollection.h"
#include "nodemap.h"

#include <QString>

#include <memory>

namespace Cameras::GenICam {

/// The parameters of a device.
///
/// Parameter objects live in the thread that asks for them, their signals arrive there; their
/// functions may be called from any. Each call gives an object of its own.
/// \param nodeMap    shared with all parameters; not null
/// \param modelName  the device's model, written into feature streams
Core::ParameterCollection::ParameterCollectionPtr
createParameterCollection(std::shared_ptr<NodeMap> nodeMap, const QString& modelName);

} // namespace Cameras::GenICam
