// SPDX-License-Identifier: Apache-2.0
// The values of all features of an emulated camera, and what the definitions say of them.
#pragma once

#include "featuretable.h"

#include <QString>

#include <memory>
#include <vector>

namespace Cameras::Emulation {

/// The values of a table's features, cell by cell. Enumerations have their entry's value, booleans
/// 0 or 1; whole numbers are exact up to 2^53. A value type; reentrant.
class FeatureValues
{
public:
    /// The values that the camera leaves the factory with.
    explicit FeatureValues(std::shared_ptr<const FeatureTable> table);

    const FeatureTable& table() const { return *m_table; }

    /// A cell's value; the default if there is no such feature or cell.
    double value(const QString& name, int cell = 0, double defaultValue = 0.0) const;

    /// Stores a value as it is. Does nothing if there is no such feature or cell.
    void set(const QString& name, double value, int cell = 0);

    double minimum(const FeatureDefinition& feature) const;
    double maximum(const FeatureDefinition& feature) const;

    bool holds(const Condition& condition) const;
    bool isAvailable(const FeatureDefinition& feature) const;
    bool isLocked(const FeatureDefinition& feature) const;

    /// Whether the feature takes this value now: within its limits and on its increment, an entry
    /// that is available. NaN is never taken.
    bool accepts(const FeatureDefinition& feature, double value) const;

    /// The nearest value that the feature takes; for an enumeration that has no such entry the
    /// first one.
    double nearest(const FeatureDefinition& feature, double value) const;

    /// A value as the feature keeps it: on its resolution.
    static double rounded(const FeatureDefinition& feature, double value);

private:
    double limit(const Bound& bound) const;

    std::shared_ptr<const FeatureTable> m_table;
    std::vector<std::vector<double>> m_cells; // by the feature's index in the table
};

} // namespace Cameras::Emulation
