// SPDX-License-Identifier: Apache-2.0
// The values of all features of an emulated camera, and what the definitions say of them.
#include "featurevalues.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Cameras::Emulation {
namespace {

const EntryDefinition* findEntry(const FeatureDefinition& feature, double value)
{
    const auto match = std::find_if(feature.entries.begin(), feature.entries.end(),
                                    [value](const EntryDefinition& entry) {
                                        return static_cast<double>(entry.value) == value;
                                    });
    return match == feature.entries.end() ? nullptr : &*match;
}

} // namespace

FeatureValues::FeatureValues(std::shared_ptr<const FeatureTable> table)
    : m_table(std::move(table))
{
    m_cells.reserve(static_cast<std::size_t>(m_table->size()));
    for (int i = 0; i < m_table->size(); ++i) {
        const FeatureDefinition& feature = m_table->at(i);
        std::vector<double>& cells = m_cells.emplace_back();
        for (int cell = 0; cell < m_table->cellCount(feature); ++cell)
            cells.push_back(FeatureTable::initialValue(feature, cell));
    }
}

double FeatureValues::value(const QString& name, int cell, double defaultValue) const
{
    const int index = m_table->indexOf(name);
    if (index < 0 || cell < 0)
        return defaultValue;
    const auto& cells = m_cells[static_cast<std::size_t>(index)];
    const auto position = static_cast<std::size_t>(cell);
    return position < cells.size() ? cells[position] : defaultValue;
}

void FeatureValues::set(const QString& name, double value, int cell)
{
    const int index = m_table->indexOf(name);
    if (index < 0 || cell < 0)
        return;
    auto& cells = m_cells[static_cast<std::size_t>(index)];
    const auto position = static_cast<std::size_t>(cell);
    if (position < cells.size())
        cells[position] = value;
}

double FeatureValues::limit(const Bound& bound) const
{
    return bound.feature.isEmpty() ? bound.constant
                                   : bound.constant + bound.factor * value(bound.feature);
}

double FeatureValues::minimum(const FeatureDefinition& feature) const
{
    return limit(feature.minimum);
}

double FeatureValues::maximum(const FeatureDefinition& feature) const
{
    return limit(feature.maximum);
}

bool FeatureValues::holds(const Condition& condition) const
{
    const auto now = static_cast<qint64>(value(condition.feature));
    return condition.values.contains(now) != condition.negated;
}

bool FeatureValues::isAvailable(const FeatureDefinition& feature) const
{
    return !feature.availableWhile || holds(*feature.availableWhile);
}

bool FeatureValues::isLocked(const FeatureDefinition& feature) const
{
    return std::any_of(feature.lockedWhile.begin(), feature.lockedWhile.end(),
                       [this](const Condition& condition) { return holds(condition); });
}

bool FeatureValues::accepts(const FeatureDefinition& feature, double value) const
{
    if (feature.kind == FeatureKind::Enumeration) {
        const EntryDefinition* entry = findEntry(feature, value);
        return entry && (!entry->availableWhile || holds(*entry->availableWhile));
    }
    const double lowest = minimum(feature);
    if (!(value >= lowest && value <= maximum(feature)))
        return false;
    return feature.kind != FeatureKind::Integer ||
           std::fmod(value - lowest, static_cast<double>(feature.increment)) == 0.0;
}

double FeatureValues::nearest(const FeatureDefinition& feature, double value) const
{
    if (feature.kind == FeatureKind::Enumeration)
        return findEntry(feature, value) ? value
                                         : static_cast<double>(feature.entries.first().value);
    const double lowest = minimum(feature);
    if (std::isnan(value))
        return lowest;
    const double inside = std::max(lowest, std::min(maximum(feature), value));
    if (feature.kind == FeatureKind::Float)
        return std::max(lowest, std::min(maximum(feature), rounded(feature, inside)));
    const auto increment = static_cast<double>(feature.increment);
    return lowest + increment * std::floor((inside - lowest) / increment);
}

double FeatureValues::rounded(const FeatureDefinition& feature, double value)
{
    if (feature.kind != FeatureKind::Float || feature.stepsPerUnit == 0)
        return value;
    const double kept = std::round(value * feature.stepsPerUnit) / feature.stepsPerUnit;
    return kept == 0.0 ? 0.0 : kept; // no negative zero
}

} // namespace Cameras::Emulation
