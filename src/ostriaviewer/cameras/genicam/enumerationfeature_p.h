// SPDX-License-Identifier: Apache-2.0
// Values and entries of enumeration features.
#pragma once

#include "feature_p.h"

#include <QVector>

namespace Cameras::GenICam {

/// One value of an enumeration.
struct FeatureEntry
{
    QString name;
    QString displayName;
    bool isSettable;
};

// All need the node map's mutex and an enumeration; they throw ::GenICam::RuntimeException with
// the feature's name and the reason.

/// The present entry's name.
QString enumerationValue(const Feature& feature);

/// The entries that the camera implements, in the description's order. Settable are those that are
/// available, whether or not the enumeration is locked.
QVector<FeatureEntry> enumerationEntryList(const Feature& feature);

/// Refuses an entry that is not there or not available.
void setEnumeration(const Feature& feature, const QString& entry);

} // namespace Cameras::GenICam
