// SPDX-License-Identifier: Apache-2.0
// The chart in the image: its outline, its patches and their colours.
#include "chartdiscriminator.h"

#include "charttargets.h"
#include "patchcolors.h"
#include "patchmeasurement.h"
#include "patchtrapezoids.h"

#include <algorithm>

namespace ColorCalibration {
namespace {

constexpr double grayGoal = 150.0;

int grayIndex()
{
    return ChartTargets().GrayPatchIndex();
}

/// 2^bitDepth; 0 for an image without pixels, of which no patch can be measured.
int divisorOf(const Ostria::COstriaImage& image)
{
    return image.isValid() ? 1 << image.readPixel(0, 0).bitDepth : 0;
}

} // namespace

ChartDiscriminator::ChartDiscriminator(int patchAreaPercent)
    : m_patchAreaPercent(patchAreaPercent)
{}

ChartDiscriminator::~ChartDiscriminator() = default;

void ChartDiscriminator::setOutline(const TrapezoidPoints& outline)
{
    m_outline = outline;
    m_patchesDirty = true;
    m_colorsStale = true;
}

void ChartDiscriminator::rebuildPatches()
{
    m_patches = computePatchTrapezoids(m_outline, m_patchAreaPercent);
    m_patchesDirty = false;
}

void ChartDiscriminator::patchTrapezoids(QVector<TrapezoidPoints>& out)
{
    if (m_patchesDirty)
        rebuildPatches();
    out += m_patches;
}

bool ChartDiscriminator::measureAllPatches(const Ostria::COstriaImage& image)
{
    const int divisor = divisorOf(image);
    if (m_patchesDirty)
        rebuildPatches();
    m_colors.clear();
    for (const TrapezoidPoints& patch : qAsConst(m_patches)) {
        QColor color;
        if (measurePatch(patch, image, divisor, color))
            m_colors.append(color);
    }
    if (!m_colors.isEmpty())
        m_colorsStale = false;
    return !m_colorsStale;
}

bool ChartDiscriminator::measureGrayPatch(const Ostria::COstriaImage& image)
{
    if (m_colors.isEmpty() && !measureAllPatches(image)) {
        m_colorsStale = true;
        m_grayInvalid = true;
        return false;
    }
    bool measured = true;
    if (m_colors.size() == PatchCount)
        measured =
            measurePatch(m_patches.at(grayIndex()), image, divisorOf(image), m_colors[grayIndex()]);
    m_colorsStale = true;
    m_grayInvalid = !measured;
    return measured;
}

void ChartDiscriminator::patchColors(QVector<QColor>& out) const
{
    if (!m_colorsStale)
        out = m_colors;
}

double ChartDiscriminator::grayHitRate() const
{
    return grayPeakValue() * 100.0 / grayGoal;
}

int ChartDiscriminator::grayPeakValue() const
{
    if (m_grayInvalid || m_colors.size() <= grayIndex())
        return 0;
    const QColor& gray = m_colors.at(grayIndex());
    return static_cast<int>(std::max({gray.redF(), gray.greenF(), gray.blueF()}) * 255.0);
}

} // namespace ColorCalibration
