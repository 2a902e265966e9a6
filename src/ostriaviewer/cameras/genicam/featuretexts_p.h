// SPDX-License-Identifier: Apache-2.0
// The translator's context of what is said of features. Comes after Aravis, as GLib names a member
// "signals", which Qt takes for its own.
#pragma once

#include <QCoreApplication>

namespace Cameras::GenICam {

struct FeatureTexts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::Feature)
};

} // namespace Cameras::GenICam
