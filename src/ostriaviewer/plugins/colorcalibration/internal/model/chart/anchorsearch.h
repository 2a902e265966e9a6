// SPDX-License-Identifier: Apache-2.0
// Finds the block of 3 by 3 patches whose colour ratios look most like the chart's.
#pragma once

#include "rgbbytes.h"

#include <QPoint>
#include <QVector>

#include <array>
#include <vector>

namespace ColorCalibration {

/// Patches of the anchor block: columns 1 to 3 of the chart's rows 0 to 2, row by row.
inline constexpr int AnchorPatchCount = 9;

/// numerator / denominator of two bytes, in double precision and then rounded; 1 where the
/// denominator is 0.
float byteRatio(unsigned char numerator, unsigned char denominator);

/// One ratio a patch of the block, row by row.
using AnchorRatios = std::array<float, AnchorPatchCount>;

/// The ratios of two channels of the chart's target colours.
/// \param numerator, denominator  0 to 2 for red, green, blue
AnchorRatios templateRatios(int numerator, int denominator);

/// The patch pitches of a scan in the order in which they are tried, in pixels: from a sixth of the
/// width (or a quarter of the height) down to an eighth of that, each three quarters of the one
/// before it, but never below 20 pixels. Empty where the largest is not above 20.
std::vector<int> scanPitches(int width, int height);

/// How like the chart's the colour ratios of a block are. Reentrant.
class AnchorScore
{
public:
    AnchorScore();

    /// The normalised correlations of the block's R/G and of its B/G ratios with the chart's,
    /// without removal of the mean, multiplied with each other. 1 is a perfect match, NaN stands
    /// for a block without red or without blue.
    /// \param x, y  the middle patch; all nine must lie inside the image
    float at(const RgbBytes& image, int x, int y, int pitch) const;

private:
    struct Template
    {
        AnchorRatios ratios;
        float energy;
    };
    static Template makeTemplate(int numerator, int denominator);
    static float similarity(const Template& target, const AnchorRatios& sample);

    Template m_redGreen;
    Template m_blueGreen;
};

/// Slides the block over the image at the pitches of scanPitches. The best AnchorScore of all
/// stands; among equals the larger pitch, then the smaller x, then the smaller y. Reentrant.
/// \param image  the smoothed image
/// \return  the nine patch centres in template order; all (0, 0) where nothing could be scored or
///          no score is above the one to begin with, the least positive normal float: an image of
///          green alone, for instance
QVector<QPoint> findAnchorBlock(const RgbBytes& image);

} // namespace ColorCalibration
