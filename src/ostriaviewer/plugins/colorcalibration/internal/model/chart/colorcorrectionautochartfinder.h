// SPDX-License-Identifier: Apache-2.0
// Finds the 24-patch chart in an image, so that nobody has to drag the grid by hand.
#pragma once

#include "chartfinderalgorithm.h"
#include "colorcorrectionautochartfinderresult.h"

#include <QImage>
#include <QObject>

namespace ColorCalibration {

/// Holds no image and no result between calls. Reentrant; findChart may run on any thread.
class ColorCorrectionAutoChartFinder : public QObject
{
    Q_OBJECT

public:
    explicit ColorCorrectionAutoChartFinder(QObject* parent = nullptr);

    /// Searches the image, emits autoChartFinderFinished on the calling thread, and returns the
    /// same record. Blocks for the whole search. Memory beyond the image stays below 16 MB.
    /// \param image  any size and format; an image without a chart may still come out as valid
    ColorCorrectionAutoChartFinderResult findChart(QImage image);

signals:
    void autoChartFinderFinished(ColorCalibration::ColorCorrectionAutoChartFinderResult result);

private:
    ChartFinderAlgorithm m_algorithm;
};

} // namespace ColorCalibration
