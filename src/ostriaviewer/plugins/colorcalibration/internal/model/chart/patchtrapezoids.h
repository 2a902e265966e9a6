// SPDX-License-Identifier: Apache-2.0
// From the grid's outline to the quadrilaterals of the patches.
#pragma once

#include "trapezoidpoints.h"

#include <QVector>

namespace ColorCalibration {

/// The quadrilaterals in which the 24 patches are measured: the middle of each cell of the 6 by 4
/// grid that the outline spans.
///
/// The outline is divided evenly along its edges, not projectively. A crossed outline gives
/// crossed patches; a corner whose two lines do not meet is (0, 0). Reentrant.
/// \param outline           outer corners of the chart, image pixels
/// \param patchAreaPercent  share of a cell's width and of its height that is used, 0 to 100
/// \return  24 quadrilaterals in chart order, image pixels
QVector<TrapezoidPoints> computePatchTrapezoids(const TrapezoidPoints& outline,
                                                int patchAreaPercent);

} // namespace ColorCalibration
