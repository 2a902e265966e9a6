// SPDX-License-Identifier: Apache-2.0
// All features of an emulated camera, in the order of its tree.
#include "featuretable.h"

#include <algorithm>
#include <utility>

namespace Cameras::Emulation {
namespace {

// Takes out what refers to features that are gone.
void forget(const QStringList& names, FeatureDefinition& feature)
{
    const auto isGone = [&names](const Condition& condition) {
        return names.contains(condition.feature);
    };
    auto& locks = feature.lockedWhile;
    locks.erase(std::remove_if(locks.begin(), locks.end(), isGone), locks.end());
    if (feature.availableWhile && isGone(*feature.availableWhile))
        feature.availableWhile.reset();
    for (EntryDefinition& entry : feature.entries)
        if (entry.availableWhile && isGone(*entry.availableWhile))
            entry.availableWhile.reset();
    if (feature.link && names.contains(feature.link->feature))
        feature.link.reset();
    for (Bound* bound : {&feature.minimum, &feature.maximum})
        if (names.contains(bound->feature))
            bound->feature.clear();
    if (names.contains(feature.selector))
        feature.selector.clear();
}

} // namespace

FeatureDefinition& FeatureTable::add(const QString& name, FeatureKind kind)
{
    Q_ASSERT(!m_indexes.contains(name));
    m_indexes.insert(name, size());
    FeatureDefinition& feature = m_features.emplace_back();
    feature.category = m_category;
    feature.name = name;
    feature.kind = kind;
    return feature;
}

FeatureDefinition& FeatureTable::integer(const QString& name, double initial, const Bound& minimum,
                                         const Bound& maximum, qint64 increment)
{
    FeatureDefinition& feature = add(name, FeatureKind::Integer);
    feature.initial = {initial};
    feature.minimum = minimum;
    feature.maximum = maximum;
    feature.increment = increment;
    return feature;
}

FeatureDefinition& FeatureTable::floating(const QString& name, double initial, const Bound& minimum,
                                          const Bound& maximum, int stepsPerUnit)
{
    FeatureDefinition& feature = add(name, FeatureKind::Float);
    feature.initial = {initial};
    feature.minimum = minimum;
    feature.maximum = maximum;
    feature.stepsPerUnit = stepsPerUnit;
    return feature;
}

FeatureDefinition& FeatureTable::boolean(const QString& name, bool initial)
{
    FeatureDefinition& feature = add(name, FeatureKind::Boolean);
    feature.initial = {initial ? 1.0 : 0.0};
    feature.maximum = {1.0};
    return feature;
}

FeatureDefinition& FeatureTable::enumeration(const QString& name,
                                             const QVector<EntryDefinition>& entries)
{
    FeatureDefinition& feature = add(name, FeatureKind::Enumeration);
    feature.entries = entries;
    feature.initial = {static_cast<double>(entries.first().value)};
    return feature;
}

FeatureDefinition& FeatureTable::enumeration(const QString& name, const QStringList& entries)
{
    QVector<EntryDefinition> numbered;
    for (const QString& entry : entries)
        numbered.append({entry, numbered.size(), {}, {}});
    return enumeration(name, numbered);
}

FeatureDefinition& FeatureTable::selector(const QString& name, const QStringList& entries)
{
    FeatureDefinition& feature = enumeration(name, entries);
    feature.selecting = true;
    return feature;
}

FeatureDefinition& FeatureTable::index(const QString& name, int count)
{
    FeatureDefinition& feature = integer(name, 0, {0.0}, {count - 1.0});
    feature.selecting = true;
    return feature.notSaved();
}

FeatureDefinition& FeatureTable::command(const QString& name)
{
    FeatureDefinition& feature = add(name, FeatureKind::Command);
    feature.maximum = {1.0};
    return feature.notSaved();
}

FeatureDefinition& FeatureTable::string(const QString& name, const QString& text)
{
    FeatureDefinition& feature = add(name, FeatureKind::String);
    feature.text = text;
    return feature.readOnly();
}

FeatureDefinition& FeatureTable::hidden(const QString& name)
{
    FeatureDefinition& feature = add(name, FeatureKind::Integer);
    feature.category.clear();
    feature.maximum = {1.0};
    return feature.readOnly();
}

void FeatureTable::remove(const QStringList& names)
{
    std::deque<FeatureDefinition> kept;
    for (FeatureDefinition& feature : m_features)
        if (!names.contains(feature.name))
            kept.push_back(std::move(feature));
    m_features = std::move(kept);

    m_indexes.clear();
    for (FeatureDefinition& feature : m_features) {
        forget(names, feature);
        m_indexes.insert(feature.name, m_indexes.size());
    }
}

void FeatureTable::keepFractions()
{
    for (FeatureDefinition& feature : m_features)
        feature.stepsPerUnit = 0;
}

const FeatureDefinition* FeatureTable::find(const QString& name) const
{
    const int index = indexOf(name);
    return index < 0 ? nullptr : &at(index);
}

int FeatureTable::cellCount(const FeatureDefinition& feature) const
{
    const FeatureDefinition* selector = find(feature.selector);
    if (!selector)
        return 1;
    if (selector->kind == FeatureKind::Enumeration)
        return selector->entries.size();
    return static_cast<int>(selector->maximum.constant) + 1;
}

double FeatureTable::initialValue(const FeatureDefinition& feature, int cell)
{
    return feature.initial.size() == 1 ? feature.initial.first() : feature.initial.at(cell);
}

} // namespace Cameras::Emulation
