// SPDX-License-Identifier: Apache-2.0
// Finds the block of 3 by 3 patches whose colour ratios look most like the chart's.
#include "anchorsearch.h"

#include "charttargets.h"
#include "pixelrows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace ColorCalibration {

namespace {

constexpr double SmallestPitch = 20.0;
constexpr double SmallestPitchShare = 0.125;
constexpr double ScaleFactor = 0.75;

using Ratios = std::array<float, AnchorPatchCount>;

float sumOfSquares(const Ratios& ratios)
{
    float sum = 0.0F;
    for (const float ratio : ratios)
        sum += ratio * ratio;
    return sum;
}

/// The ratios of one colour pair over the block, and how like them a sample is.
class RatioTemplate
{
public:
    /// \param numerator, denominator  columns of the chart's target colours
    RatioTemplate(int numerator, int denominator)
    {
        const PatchColors targets = ChartTargets().TargetColors();
        for (int i = 0; i < AnchorPatchCount; ++i) {
            const int patch = i / 3 * PatchColumns + i % 3 + 1;
            m_ratios[std::size_t(i)] =
                static_cast<float>(targets(patch, numerator) / targets(patch, denominator));
        }
        m_energy = sumOfSquares(m_ratios);
    }

    float similarity(const Ratios& sample) const
    {
        float product = 0.0F;
        for (std::size_t i = 0; i < sample.size(); ++i)
            product += sample[i] * m_ratios[i];
        return product / std::sqrt(sumOfSquares(sample) * m_energy);
    }

private:
    Ratios m_ratios{};
    float m_energy = 0.0F;
};

/// The best position so far. Only a strictly better one replaces it.
class BlockScan
{
public:
    explicit BlockScan(const RgbBytes& image)
        : m_image(image)
    {}

    void scan(int pitch)
    {
        const int step = static_cast<int>(std::lround(pitch / 3));
        const int margin = static_cast<int>(std::lround(1.5 * pitch));
        for (int x = 2 * pitch; x < m_image.width - 2 * pitch; x += step)
            for (int y = margin; y < m_image.height - margin; y += step)
                evaluate(x, y, pitch);
    }

    QVector<QPoint> block() const
    {
        QVector<QPoint> points;
        points.reserve(AnchorPatchCount);
        for (int i = 0; i < AnchorPatchCount; ++i)
            points.append(cell(i, m_bestX, m_bestY, m_bestPitch));
        return points;
    }

private:
    static QPoint cell(int i, int x, int y, int pitch)
    {
        return {x + pitch * (i % 3 - 1), y + pitch * (i / 3 - 1)};
    }

    void evaluate(int x, int y, int pitch)
    {
        Ratios redGreen;
        Ratios blueGreen;
        for (int i = 0; i < AnchorPatchCount; ++i) {
            const QPoint point = cell(i, x, y, pitch);
            const unsigned char* rgb = m_image.pixel(point.x(), point.y());
            redGreen[std::size_t(i)] = byteRatio(rgb[0], rgb[1]);
            blueGreen[std::size_t(i)] = byteRatio(rgb[2], rgb[1]);
        }
        const float score = m_redGreen.similarity(redGreen) * m_blueGreen.similarity(blueGreen);
        if (score > m_bestScore) {
            m_bestScore = score;
            m_bestX = x;
            m_bestY = y;
            m_bestPitch = pitch;
        }
    }

    const RgbBytes& m_image;
    RatioTemplate m_redGreen{0, 1};
    RatioTemplate m_blueGreen{2, 1};
    float m_bestScore = std::numeric_limits<float>::min();
    int m_bestX = 0;
    int m_bestY = 0;
    int m_bestPitch = 0;
};

} // namespace

float byteRatio(unsigned char numerator, unsigned char denominator)
{
    if (denominator == 0)
        return 1.0F;
    const double* fractions = byteFractions();
    return static_cast<float>(fractions[numerator] / fractions[denominator]);
}

QVector<QPoint> findAnchorBlock(const RgbBytes& image)
{
    const double largest = std::min(image.width / 6.0, image.height * 0.25);
    const double smallest = std::max(SmallestPitch, largest * SmallestPitchShare);
    BlockScan scan(image);
    if (largest > smallest) {
        const double scales = std::ceil(std::log(largest / smallest) / -std::log(ScaleFactor));
        for (int s = 0; s < static_cast<int>(scales); ++s)
            scan.scan(static_cast<int>(std::lround(std::pow(ScaleFactor, s) * largest)));
    }
    return scan.block();
}

} // namespace ColorCalibration
