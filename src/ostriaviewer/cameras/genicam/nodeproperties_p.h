// SPDX-License-Identifier: Apache-2.0
// What a node of the description says of itself, where Aravis has no question for it.
#pragma once

#include <vector>

#include <cstdint>

typedef struct _ArvGcFeatureNode ArvGcFeatureNode;
typedef struct _ArvGcEnumEntry ArvGcEnumEntry;

namespace Cameras::GenICam {

/// The node and those that its value comes through, in order: feature, converter, register.
std::vector<ArvGcFeatureNode*> valueChain(ArvGcFeatureNode* node);

/// The features that a selector selects, in the description's order; none if it is no selector.
std::vector<ArvGcFeatureNode*> selectedNodes(ArvGcFeatureNode* node);

/// The features and categories of a category, in the description's order.
std::vector<ArvGcFeatureNode*> categoryNodes(ArvGcFeatureNode* category);

/// The entries of an enumeration, in the description's order.
std::vector<ArvGcEnumEntry*> enumerationEntries(ArvGcFeatureNode* enumeration);

/// Whether the description marks the feature as part of a camera's settings.
bool isStreamable(ArvGcFeatureNode* node);

/// The value that starts a command.
/// \throws ::GenICam::RuntimeException  it cannot be read
std::int64_t commandValue(ArvGcFeatureNode* command);

} // namespace Cameras::GenICam
