// SPDX-License-Identifier: Apache-2.0
// A camera's feature as the user reads and writes it.
#pragma once

#include "iparametercollection.h"

#include <QMetaType>
#include <QString>
#include <QVector>

namespace Viewer {

/// How a feature is edited.
enum class FeatureEditor { None, Number, Switch, Choice, Text, Button };

FeatureEditor editorOf(Core::ParameterCollection::IParameter& parameter);

/// What the user sees of a feature at one moment. A plain value.
struct FeatureState
{
    bool isAvailable = false;
    bool isWritable = false;
    bool isPending = false; ///< the camera has not answered in time; all else says nothing
    QString text;           ///< the value for people, with its unit
    QString written;        ///< the value as it is typed; the entry's name of a choice
    QString limits;         ///< for people; empty where there are none
};

/// Reads a feature, without waiting long; one that cannot be read gives a state without value.
FeatureState readFeature(Core::ParameterCollection::IParameter& parameter);

/// Writes what the user typed or chose; "1" and "0" switch. A button is pressed.
/// \return  empty, or why it was not written and what would be, for people
QString writeFeature(Core::ParameterCollection::IParameter& parameter, const QString& text);

/// An entry of a choice. A plain value.
struct FeatureChoice
{
    QString name; ///< as it is written
    QString text; ///< for people
};

using FeatureChoices = QVector<FeatureChoice>;

/// The entries that can be chosen now, of one answer of the camera; none for other features, or if
/// it does not answer in time.
FeatureChoices choicesOf(Core::ParameterCollection::IParameter& parameter);

} // namespace Viewer

Q_DECLARE_METATYPE(Viewer::FeatureChoice)
