// SPDX-License-Identifier: Apache-2.0
// What the lines that a camera has refused have left different.
#pragma once

#include "iparametercollection.h"

#include <QString>
#include <QStringList>

namespace ColorCalibration {

/// Those of the refused lines that tell of a setting which the camera does not have all the same. A
/// camera may refuse to be told what it has already, as of a feature that is locked.
///
/// Reads all settings once. A line that names no setting of the text counts as unmet, and so does
/// one whose setting cannot be read: who is told too much looks in vain, who is told too little
/// goes on with a camera that is not as it was. Reentrant.
/// \param refused     what loading the text has answered, a line each
/// \param wanted      the feature stream text, as this camera has saved it before
/// \param nodeMap     that both belong to
QStringList unmetLines(const QStringList& refused, const QString& wanted,
                       Core::ParameterCollection::IParameterCollection& parameters,
                       const QString& nodeMap);

} // namespace ColorCalibration
