// SPDX-License-Identifier: Apache-2.0
// What makes up one feature of an emulated camera.
#pragma once

#include <QString>
#include <QVector>

#include <optional>

namespace Cameras::Emulation {

enum class FeatureKind { Integer, Float, Boolean, Enumeration, Command, String };

/// Holds while a feature has one of some values.
struct Condition
{
    QString feature;
    QVector<qint64> values;
    bool negated = false; ///< holds while it has none of them
};

/// A limit that may follow another feature: constant + factor * feature.
struct Bound
{
    double constant = 0.0;
    QString feature = {}; ///< none: the constant alone
    double factor = 1.0;
};

struct EntryDefinition
{
    QString name;
    qint64 value = 0;
    QString displayName = {};                     ///< empty: the name
    std::optional<Condition> availableWhile = {}; ///< none: always
};

/// Two features that show one value: the other one is this one times factor.
struct Link
{
    QString feature;
    double factor = 1.0;
};

/// One feature: where it stands in the tree, what it takes, when it may be written.
///
/// The description that clients read and the checks in the camera both come from here. Functions
/// that change the definition return it, so that a table of features reads as a list.
struct FeatureDefinition
{
    QString category; ///< empty: a register that no client sees
    QString name;
    FeatureKind kind = FeatureKind::Integer;

    bool writable = true;
    bool streamable = true; ///< stands in settings that a client saves
    bool inUserSets = true;
    bool selecting = false; ///< chooses the cell of other features; has no register itself

    QVector<double> initial = {0.0}; ///< one for each cell, or one for all
    QString text;                    ///< String only
    Bound minimum;
    Bound maximum;
    qint64 increment = 1; ///< Integer only
    int stepsPerUnit = 0; ///< Float only: the resolution is 1/stepsPerUnit
    QString unit;         ///< Float only
    QVector<EntryDefinition> entries;

    QString selector; ///< the feature that chooses the cell, empty if there is one cell
    QVector<Condition> lockedWhile;
    std::optional<Condition> availableWhile;
    std::optional<Link> link;

    FeatureDefinition& selectedBy(const QString& newSelector)
    {
        selector = newSelector;
        return *this;
    }
    FeatureDefinition& lockedBy(const Condition& condition)
    {
        lockedWhile.append(condition);
        return *this;
    }
    FeatureDefinition& onlyWhile(const Condition& condition)
    {
        availableWhile = condition;
        return *this;
    }
    FeatureDefinition& linkedTo(const QString& feature, double factor)
    {
        link = Link{feature, factor};
        return *this;
    }
    FeatureDefinition& from(const QVector<double>& cells)
    {
        initial = cells;
        return *this;
    }
    FeatureDefinition& inUnit(const QString& newUnit)
    {
        unit = newUnit;
        return *this;
    }
    FeatureDefinition& readOnly()
    {
        writable = false;
        return notSaved();
    }
    FeatureDefinition& notSaved()
    {
        inUserSets = false;
        return notStreamed();
    }
    FeatureDefinition& notStreamed()
    {
        streamable = false;
        return *this;
    }
};

} // namespace Cameras::Emulation
