// SPDX-License-Identifier: Apache-2.0
// Values of any kind of feature as text.
#pragma once

#include "feature_p.h"

#include <QString>

#include <optional>

namespace Cameras::GenICam {

// All need the node map's mutex; they throw ::GenICam::RuntimeException with the feature's name and
// the reason.

/// Whether the feature has a value that text can hold.
bool hasText(const Feature& feature);

/// The present value: enumerations by entry name, booleans as 0 or 1, numbers so that they come
/// back exactly.
QString featureText(const Feature& feature);

/// The present value where a line of a stream brings it back as it is; not of a text with line
/// ends, or with bytes that are no UTF-8.
std::optional<QString> restorableText(const Feature& feature);

/// Refuses text that stands for no value of the feature's kind, and what the feature refuses.
void setFeatureText(const Feature& feature, const QString& text);

} // namespace Cameras::GenICam
