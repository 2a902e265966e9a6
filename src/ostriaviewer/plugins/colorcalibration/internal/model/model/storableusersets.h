// SPDX-License-Identifier: Apache-2.0
// Which user sets of a camera settings can be stored in.
#pragma once

#include "iparametercollection.h"

#include <QVector>

namespace ColorCalibration {

/// The entries of the camera's user set selector that can be chosen and are the user's: factory
/// settings cannot be overwritten. Reentrant.
/// \throws what the parameters throw, so too where the camera has no user sets at all
QVector<Core::ParameterCollection::EnumerationEntry>
storableUserSets(Core::ParameterCollection::IParameterCollection& parameters);

} // namespace ColorCalibration
