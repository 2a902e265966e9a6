// SPDX-License-Identifier: Apache-2.0
// All features of an emulated camera, in the order of its tree.
#pragma once

#include "featuredefinition.h"

#include <QHash>
#include <QStringList>

#include <deque>

namespace Cameras::Emulation {

/// A list of features that is filled once and then read. Reentrant.
///
/// References to features stay valid as long as the table lives and nothing is removed.
class FeatureTable
{
public:
    /// What is added from here on stands in this category.
    void beginCategory(const QString& category) { m_category = category; }

    FeatureDefinition& integer(const QString& name, double initial, const Bound& minimum,
                               const Bound& maximum, qint64 increment = 1);

    /// \param stepsPerUnit  the resolution is 1/stepsPerUnit
    FeatureDefinition& floating(const QString& name, double initial, const Bound& minimum,
                                const Bound& maximum, int stepsPerUnit);
    FeatureDefinition& boolean(const QString& name, bool initial);

    /// \param entries  at least one; the first is the initial one
    FeatureDefinition& enumeration(const QString& name, const QVector<EntryDefinition>& entries);

    /// An enumeration with the values 0, 1, 2, ...
    FeatureDefinition& enumeration(const QString& name, const QStringList& entries);

    /// An enumeration that chooses the cell of other features.
    FeatureDefinition& selector(const QString& name, const QStringList& entries);

    /// An index from 0 to count - 1 that chooses the cell of other features.
    FeatureDefinition& index(const QString& name, int count);
    FeatureDefinition& command(const QString& name);
    FeatureDefinition& string(const QString& name, const QString& text);

    /// A register that no client sees.
    FeatureDefinition& hidden(const QString& name);

    /// Takes features out, and the conditions and limits that depend on them. Where a selector
    /// goes, the first cell stays.
    void remove(const QStringList& names);

    /// Lets every floating feature keep what is written to it, to the last digit.
    void keepFractions();

    /// \return  null if there is none
    const FeatureDefinition* find(const QString& name) const;

    int size() const { return static_cast<int>(m_features.size()); }
    const FeatureDefinition& at(int index) const
    {
        return m_features[static_cast<std::size_t>(index)];
    }

    /// \return  -1 if there is none
    int indexOf(const QString& name) const { return m_indexes.value(name, -1); }

    /// How many cells a feature has: one for each value of its selector.
    int cellCount(const FeatureDefinition& feature) const;

    /// A cell's value when the camera leaves the factory.
    static double initialValue(const FeatureDefinition& feature, int cell);

private:
    FeatureDefinition& add(const QString& name, FeatureKind kind);

    QString m_category;
    std::deque<FeatureDefinition> m_features;
    QHash<QString, int> m_indexes;
};

} // namespace Cameras::Emulation
