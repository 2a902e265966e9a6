// SPDX-License-Identifier: Apache-2.0
// Finds the block of 3 by 3 patches whose colour ratios look most like the chart's.
#include "anchorsearch.h"

#include "charttargets.h"
#include "pixelrows.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ColorCalibration {

namespace {

constexpr double SmallestPitch = 20.0;
constexpr double SmallestPitchShare = 0.125;
constexpr double ScaleFactor = 0.75;

float sumOfSquares(const AnchorRatios& ratios)
{
    float sum = 0.0F;
    for (const float ratio : ratios)
        sum += ratio * ratio;
    return sum;
}

QPoint cell(int i, int x, int y, int pitch)
{
    return {x + pitch * (i % 3 - 1), y + pitch * (i / 3 - 1)};
}

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
    void evaluate(int x, int y, int pitch)
    {
        const float score = m_score.at(m_image, x, y, pitch);
        if (score > m_bestScore) {
            m_bestScore = score;
            m_bestX = x;
            m_bestY = y;
            m_bestPitch = pitch;
        }
    }

    const RgbBytes& m_image;
    AnchorScore m_score;
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

AnchorRatios templateRatios(int numerator, int denominator)
{
    const PatchColors targets = ChartTargets().TargetColors();
    AnchorRatios ratios{};
    for (int i = 0; i < AnchorPatchCount; ++i) {
        const int patch = i / 3 * PatchColumns + i % 3 + 1;
        ratios[std::size_t(i)] =
            static_cast<float>(targets(patch, numerator) / targets(patch, denominator));
    }
    return ratios;
}

std::vector<int> scanPitches(int width, int height)
{
    const double largest = std::min(width / 6.0, height * 0.25);
    const double smallest = std::max(SmallestPitch, largest * SmallestPitchShare);
    std::vector<int> pitches;
    if (largest > smallest) {
        const double scales = std::ceil(std::log(largest / smallest) / -std::log(ScaleFactor));
        for (int s = 0; s < static_cast<int>(scales); ++s)
            pitches.push_back(static_cast<int>(std::lround(std::pow(ScaleFactor, s) * largest)));
    }
    return pitches;
}

AnchorScore::AnchorScore()
    : m_redGreen(makeTemplate(0, 1))
    , m_blueGreen(makeTemplate(2, 1))
{}

AnchorScore::Template AnchorScore::makeTemplate(int numerator, int denominator)
{
    const AnchorRatios ratios = templateRatios(numerator, denominator);
    return {ratios, sumOfSquares(ratios)};
}

float AnchorScore::similarity(const Template& target, const AnchorRatios& sample)
{
    float product = 0.0F;
    for (std::size_t i = 0; i < sample.size(); ++i)
        product += sample[i] * target.ratios[i];
    return product / std::sqrt(sumOfSquares(sample) * target.energy);
}

float AnchorScore::at(const RgbBytes& image, int x, int y, int pitch) const
{
    AnchorRatios redGreen;
    AnchorRatios blueGreen;
    for (int i = 0; i < AnchorPatchCount; ++i) {
        const QPoint point = cell(i, x, y, pitch);
        const unsigned char* rgb = image.pixel(point.x(), point.y());
        redGreen[std::size_t(i)] = byteRatio(rgb[0], rgb[1]);
        blueGreen[std::size_t(i)] = byteRatio(rgb[2], rgb[1]);
    }
    return similarity(m_redGreen, redGreen) * similarity(m_blueGreen, blueGreen);
}

QVector<QPoint> findAnchorBlock(const RgbBytes& image)
{
    BlockScan scan(image);
    for (const int pitch : scanPitches(image.width, image.height))
        scan.scan(pitch);
    return scan.block();
}

} // namespace ColorCalibration
