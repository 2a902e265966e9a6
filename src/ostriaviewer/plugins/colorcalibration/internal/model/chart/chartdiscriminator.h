// SPDX-License-Identifier: Apache-2.0
// The chart in the image: its outline, its patches and their colours.
#pragma once

#include "ostriaimage.h"
#include "trapezoidpoints.h"

#include <QColor>
#include <QVector>

namespace ColorCalibration {

/// Keeps the grid's outline and separates the colours of the 24 patches out of camera images.
///
/// It passes no verdict on whether there is a chart: any outline on any image yields colours, and
/// a wrong outline wrong ones. Nothing is logged and nothing thrown. Reentrant, without a lock of
/// its own.
class ChartDiscriminator
{
public:
    /// \param patchAreaPercent  share of a cell's width and of its height that is measured, 0 to
    /// 100
    explicit ChartDiscriminator(int patchAreaPercent);
    virtual ~ChartDiscriminator();
    ChartDiscriminator(const ChartDiscriminator&) = delete;
    ChartDiscriminator& operator=(const ChartDiscriminator&) = delete;

    /// Sets the outer corners of the chart, image pixels. Every call makes patches and colours be
    /// taken anew, also one with the present value.
    void setOutline(const TrapezoidPoints& outline);
    TrapezoidPoints outline() const { return m_outline; }

    /// Appends the 24 patches in chart order, image pixels.
    void patchTrapezoids(QVector<TrapezoidPoints>& out);

    /// Measures all patches. A patch with too few pixels leaves no gap: the colours after it move
    /// up.
    /// \return  whether there is at least one colour; also true if there is none but the colours
    ///          taken before were fresh
    bool measureAllPatches(const Ostria::COstriaImage& image);

    /// Measures the gray patch alone where all 24 colours are known, all patches where none is.
    /// Behind a new outline the patch is still the old one until measureAllPatches or
    /// patchTrapezoids has followed it.
    /// Afterwards the colours are stale, as all but one of them belong to an older image.
    /// \return  whether the gray reading can be used
    bool measureGrayPatch(const Ostria::COstriaImage& image);

    /// Assigns the colours in chart order if they are fresh; leaves out alone otherwise.
    void patchColors(QVector<QColor>& out) const;

    /// Brightness of the gray patch in percent of its goal, 100 at a peak value of 150; above 100
    /// where it is brighter.
    double grayHitRate() const;

    /// Largest channel of the gray patch on 0 to 255, truncated; 0 without a usable reading.
    int grayPeakValue() const;

private:
    void rebuildPatches();

    QVector<TrapezoidPoints> m_patches;
    bool m_patchesDirty = true;
    QVector<QColor> m_colors;
    bool m_colorsStale = true;
    bool m_grayInvalid = true;
    TrapezoidPoints m_outline;
    int m_patchAreaPercent;
};

} // namespace ColorCalibration
