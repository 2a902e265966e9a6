// SPDX-License-Identifier: Apache-2.0
// The chart finder's separable mean filter: each line's sums slide in their own order, and many
// lines slide side by side so that memory is read in its order and the compiler can use vectors.
#include "boxsmoothing.h"

#include "pixelrows.h"

#include <algorithm>
#include <vector>

namespace ColorCalibration {

namespace {

constexpr int BlockRows = 8;
constexpr int BlockLanes = BlockRows * RgbBytes::Channels;

/// The byte that a QColor of this fraction leaves in a 32-bit image: first 16 bits, then 8, both
/// rounded.
unsigned char toByte(float fraction)
{
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): as QColor rounds, and without a call
    const int wide = static_cast<int>(double(fraction) * 65535.0 + 0.5) + 128;
    return static_cast<unsigned char>((wide - (wide >> 8)) >> 8);
}

void addSamples(float* sums, const double* samples, std::size_t lanes)
{
    for (std::size_t lane = 0; lane < lanes; ++lane)
        sums[lane] = static_cast<float>(double(sums[lane]) + samples[lane]);
}

/// One step of many independent lines: take in a sample each, put out the mean, drop a sample.
inline void slide(float* __restrict sums, const double* __restrict entering,
                  const double* __restrict leaving, unsigned char* __restrict means,
                  std::size_t lanes, float window)
{
    for (std::size_t lane = 0; lane < lanes; ++lane) {
        auto sum = static_cast<float>(double(sums[lane]) + entering[lane]);
        float mean = sum / window;
        sum = mean > 1.0F ? window : sum;
        mean = mean > 1.0F ? 1.0F : mean;
        sum = mean < 0.0F ? 0.0F : sum;
        mean = mean < 0.0F ? 0.0F : mean;
        means[lane] = toByte(mean);
        sums[lane] = static_cast<float>(double(sum) - leaving[lane]);
    }
}

/// The rows that the column pass's window spans, each converted once.
class RowWindow
{
public:
    RowWindow(const QImage& image, int radius)
        : m_rows(image)
        , m_lanes(std::size_t(image.width()) * RgbBytes::Channels)
        , m_held(std::size_t(std::min(2 * radius + 1, image.height())), -1)
        , m_samples(m_held.size() * m_lanes)
    {}

    /// The row nearest to y. Stays valid until a row further than 2 * radius from it is asked for.
    const double* row(int y)
    {
        const int nearest = std::clamp(y, 0, m_rows.height() - 1);
        const std::size_t slot = std::size_t(nearest) % m_held.size();
        double* samples = m_samples.data() + slot * m_lanes;
        if (m_held[slot] != nearest) {
            m_rows.readFractions(nearest, samples);
            m_held[slot] = nearest;
        }
        return samples;
    }

private:
    PixelRows m_rows;
    std::size_t m_lanes;
    std::vector<int> m_held;
    std::vector<double> m_samples;
};

/// A few rows turned on their side, so that they slide as lanes of the row pass.
class RowBlock
{
public:
    RowBlock(int width, int radius)
        : m_width(width)
        , m_radius(radius)
        , m_samples(std::size_t(width) * BlockLanes)
    {}

    void setRow(int row, const unsigned char* rgb)
    {
        const double* fractions = byteFractions();
        double* out = m_samples.data() + offsetOf(row);
        for (int x = 0; x < m_width; ++x, out += BlockLanes, rgb += RgbBytes::Channels) {
            for (int channel = 0; channel < RgbBytes::Channels; ++channel)
                out[channel] = fractions[rgb[channel]];
        }
    }

    void smoothInto(RgbBytes& result, int firstRow, int rows) const
    {
        float sums[BlockLanes] = {};
        unsigned char means[BlockLanes];
        for (int offset = -m_radius; offset < m_radius; ++offset)
            addSamples(sums, column(offset), BlockLanes);
        const auto window = static_cast<float>(2 * m_radius + 1);
        for (int x = 0; x < m_width; ++x) {
            slide(sums, column(x + m_radius), column(x - m_radius), means, BlockLanes, window);
            for (int row = 0; row < rows; ++row)
                std::copy_n(means + offsetOf(row), RgbBytes::Channels,
                            result.pixel(x, firstRow + row));
        }
    }

private:
    /// Where a row's lanes begin.
    static std::size_t offsetOf(int row) { return std::size_t(row) * RgbBytes::Channels; }

    const double* column(int x) const
    {
        return m_samples.data() + std::size_t(std::clamp(x, 0, m_width - 1)) * BlockLanes;
    }

    int m_width;
    int m_radius;
    std::vector<double> m_samples;
};

} // namespace

RgbBytes smooth(const QImage& image, int radius)
{
    if (image.isNull())
        return {};
    radius = std::clamp(radius, 0, MaxBoxRadius);
    const std::size_t lanes = std::size_t(image.width()) * RgbBytes::Channels;
    const auto window = static_cast<float>(2 * radius + 1);
    RowWindow source(image, radius);
    RowBlock block(image.width(), radius);
    std::vector<float> sums(lanes);
    std::vector<unsigned char> means(lanes);
    RgbBytes result(image.width(), image.height());

    for (int offset = -radius; offset < radius; ++offset)
        addSamples(sums.data(), source.row(offset), lanes);
    for (int y = 0; y < result.height; ++y) {
        slide(sums.data(), source.row(y + radius), source.row(y - radius), means.data(), lanes,
              window);
        const int row = y % BlockRows;
        block.setRow(row, means.data());
        if (row == BlockRows - 1 || y == result.height - 1)
            block.smoothInto(result, y - row, row + 1);
    }
    return result;
}

} // namespace ColorCalibration
