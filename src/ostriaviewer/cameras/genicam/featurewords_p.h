// SPDX-License-Identifier: Apache-2.0
// What a description tells people about features.
#pragma once

#include "feature_p.h"
#include "iparametercollection.h"

#include <QString>

#include <vector>

namespace Cameras::GenICam {

// All need the node map's mutex; a feature must not be empty.

/// The feature's description, else its tool tip, else nothing.
QString descriptionOf(const Feature& feature);

/// The unit of a number, nothing where there is none.
QString unitOf(const Feature& feature);

/// The categories below the root, each once, with the features that the camera
/// implements.
std::vector<Core::ParameterCollection::FeatureCategory> featureCategories(NodeMapPrivate& map);

} // namespace Cameras::GenICam
