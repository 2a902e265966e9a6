// SPDX-License-Identifier: Apache-2.0
// Conversion of a whole image, cut into strips of rows that threads share.
#include "stripconversion.h"

#include "demosaic.h"
#include "displaypixels.h"
#include "rowdecoder.h"

#include <opencv2/core.hpp>

#include <algorithm>
#include <atomic>
#include <cstring>

namespace Ostria {
namespace {

/// What a strip's scratch memory should not exceed much, so that it stays close to its core.
constexpr std::size_t stripBytes = std::size_t(1536) * 1024;

/// Lower strips of a mosaic would spend too much on the rows where they meet.
constexpr int smallestStrip = 16;

/// A conversion cut into strips of rows that can be worked on in any order.
class StripConversion
{
public:
    StripConversion(const COstriaImage& source, const ConversionTarget& target, int threads)
        : m_source(source)
        , m_info(*pixelTypeInfo(source.pixelType()))
        , m_target(target)
        , m_topDown(target.orientation == ImageOrientation::TopDown)
        , m_direct(m_topDown && target.type == PixelType::RGB16 && target.stride % 2 == 0 &&
                   reinterpret_cast<std::uintptr_t>(target.data) % 2 == 0)
    {
        if (m_info.layout != PixelLayout::Bayer)
            return;
        const std::size_t rowBytes = sizeof(std::uint16_t) * (scratchValues(2) - scratchValues(1));
        const auto perThread = static_cast<std::size_t>(source.height()) * rowBytes / stripBytes /
                               static_cast<std::size_t>(threads);
        const int wanted = (static_cast<int>(perThread) + 1) * threads;
        m_stripRows = std::max(source.height() / wanted / 2 * 2, smallestStrip);
    }

    /// The last strip takes what is left over, so that none is too low to be interpolated.
    int strips() const { return std::max(m_source.height() / m_stripRows, 1); }

    /// Values of scratch memory that each thread needs for itself.
    std::size_t scratchValues() const
    {
        return scratchValues(m_source.height() - (strips() - 1) * m_stripRows);
    }

    void convertStrip(int strip, std::uint16_t* scratch) const
    {
        const int begin = strip * m_stripRows;
        const int end = strip + 1 == strips() ? m_source.height() : begin + m_stripRows;
        if (m_info.layout == PixelLayout::Bayer)
            convertMosaic(begin, end, scratch);
        else
            convertColors(begin, end, scratch);
    }

private:
    std::size_t rowValues() const { return 3 * static_cast<std::size_t>(m_source.width()); }

    std::size_t scratchValues(int rows) const
    {
        if (m_info.layout != PixelLayout::Bayer)
            return rowValues();
        const std::size_t colors = m_direct ? 0 : static_cast<std::size_t>(rows) * rowValues();
        return demosaicScratch(m_source.width(), rows) + colors;
    }

    void convertMosaic(int begin, int end, std::uint16_t* scratch) const
    {
        if (m_direct) {
            auto* first = reinterpret_cast<std::uint16_t*>(targetRow(begin));
            demosaicRows(m_source, begin, end, scratch, first, m_target.stride);
            return;
        }
        std::uint16_t* rgb = scratch + demosaicScratch(m_source.width(), end - begin);
        demosaicRows(m_source, begin, end, scratch, rgb, sizeof(std::uint16_t) * rowValues());
        for (int y = begin; y < end; ++y, rgb += rowValues())
            writeRow(y, reinterpret_cast<const std::uint8_t*>(rgb));
    }

    void convertColors(int begin, int end, std::uint16_t* scratch) const
    {
        for (int y = begin; y < end; ++y) {
            const std::uint8_t* row =
                m_source.data() + m_source.stride() * static_cast<std::size_t>(y);
            if (m_source.pixelType() != PixelType::RGB16) {
                decodeColors(m_source.pixelType(), m_info, row, 0, y, m_source.width(),
                             16 - m_info.bitDepth, scratch);
                row = reinterpret_cast<const std::uint8_t*>(scratch);
            }
            writeRow(y, row);
        }
    }

    void writeRow(int y, const std::uint8_t* rgb16) const
    {
        if (m_target.type == PixelType::BGRa8)
            packForDisplay(rgb16, m_source.width(), targetRow(y));
        else
            std::memcpy(targetRow(y), rgb16, sizeof(std::uint16_t) * rowValues());
    }

    std::uint8_t* targetRow(int y) const
    {
        const int line = m_topDown ? y : m_source.height() - 1 - y;
        return m_target.data + m_target.stride * static_cast<std::size_t>(line);
    }

    const COstriaImage& m_source;
    const PixelTypeInfo& m_info;
    const ConversionTarget m_target;
    const bool m_topDown;
    const bool m_direct; ///< rows of the target can be interpolated in place
    int m_stripRows = smallestStrip;
};

/// Order between threads that a tool can see. OpenCV's threads keep it anyway, but by means that
/// ThreadSanitizer does not know, so that it would report every strip.
class VisibleOrder
{
public:
    static void publish() { s_count.fetch_add(1, std::memory_order_acq_rel); }
    static void observe() { s_count.load(std::memory_order_acquire); }

private:
    static inline std::atomic<unsigned> s_count{0};
};

/// Works off all strips; each task takes the next one until none is left.
class StripLoop : public cv::ParallelLoopBody
{
public:
    StripLoop(const StripConversion& conversion, std::uint16_t* scratch)
        : m_conversion(conversion)
        , m_scratch(scratch)
    {}

    void operator()(const cv::Range& tasks) const override
    {
        VisibleOrder::observe();
        const int strips = m_conversion.strips();
        for (int task = tasks.start; task < tasks.end; ++task) {
            std::uint16_t* own =
                m_scratch + m_conversion.scratchValues() * static_cast<std::size_t>(task);
            for (int strip = m_next++; strip < strips; strip = m_next++)
                m_conversion.convertStrip(strip, own);
        }
        VisibleOrder::publish();
    }

private:
    const StripConversion& m_conversion;
    std::uint16_t* const m_scratch;
    mutable std::atomic<int> m_next{0};
};

} // namespace

void convertInStrips(const COstriaImage& source, const ConversionTarget& target,
                     std::vector<std::uint16_t>& scratch)
{
    const int threads = std::max(cv::getNumThreads(), 1);
    const StripConversion conversion(source, target, threads);
    const int tasks = std::min(threads, conversion.strips());
    const std::size_t needed = conversion.scratchValues() * static_cast<std::size_t>(tasks);
    if (scratch.size() < needed)
        scratch.resize(needed);

    const StripLoop loop(conversion, scratch.data());
    VisibleOrder::publish();
    cv::parallel_for_(cv::Range(0, tasks), loop, tasks);
    VisibleOrder::observe();
}

} // namespace Ostria
