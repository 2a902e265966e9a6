// SPDX-License-Identifier: Apache-2.0
// Values and limits of integer, float and boolean features.
#pragma once

#include "feature_p.h"

namespace Cameras::GenICam {

// All need the node map's mutex and a feature of the kind that the function names; they throw
// ::GenICam::RuntimeException with the feature's name and the reason. Those about limits and
// increments want the feature to be available; the others look themselves.

qint64 integerValue(const Feature& feature);

/// The lowest and the highest integer where there is no limit.
qint64 integerMinimum(const Feature& feature);
qint64 integerMaximum(const Feature& feature);

/// At least 1.
qint64 integerIncrement(const Feature& feature);

/// Refuses what is out of range or no whole number of increments from the minimum.
/// \param verify  reads back and throws if the camera keeps another value
void setInteger(const Feature& feature, qint64 value, bool verify);

double floatValue(const Feature& feature);

/// The lowest and the highest double where there is no limit.
double floatMinimum(const Feature& feature);
double floatMaximum(const Feature& feature);

/// Refuses what is out of range. A value outside by no more than the resolution of a
/// single-precision register counts as the limit: that is what reading the limit back may give.
/// Where an integer holds the value, it goes to the nearest.
void setFloat(const Feature& feature, double value);

bool booleanValue(const Feature& feature);

/// \param verify  reads back and throws if the camera keeps another value
void setBoolean(const Feature& feature, bool value, bool verify);

/// The shortest text that reads as exactly that number, the same in every locale.
QString numberText(double value);

} // namespace Cameras::GenICam
