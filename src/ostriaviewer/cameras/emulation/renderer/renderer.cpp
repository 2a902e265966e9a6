// SPDX-License-Identifier: Apache-2.0
// The picture that an emulated camera takes of its scene.
#include "renderer.h"

#include "colorstages.h"
#include "gradientdemosaic.h"
#include "imageformatconverter.h"
#include "mosaiccorrection.h"
#include "pixelpacking.h"
#include "region.h"
#include "sensor.h"
#include "testpattern.h"
#include "tonecurve.h"

#include <cstddef>
#include <vector>

namespace Cameras::Emulation {
namespace {

using Ostria::COstriaImage;
using Ostria::PixelType;

std::uint8_t* rowOf(std::uint8_t* first, std::size_t stride, int y)
{
    return first + stride * static_cast<std::size_t>(y);
}

bool isBayer(PixelType type)
{
    return Ostria::pixelTypeInfo(type)->layout == Ostria::PixelLayout::Bayer;
}

} // namespace

struct Renderer::State
{
    State(const SensorModel& model, const Scene& initialScene)
        : scene(initialScene)
        , sensor(model)
        , raw(static_cast<std::size_t>(model.width))
        , row(static_cast<std::size_t>(model.width))
    {
        sensor.expose(scene.project(model.width, model.height));
    }

    /// A run of one row's words up to white balance.
    void mosaicRow(const PipelineSettings& settings, const MosaicCorrection& correction,
                   std::uint64_t frame, const Region& region, int y, Word* words)
    {
        const int line = region.y + y;
        if (settings.testImage == TestImage::Off)
            sensor.readRow(settings.exposureTime, settings.gain, frame, region.x, line,
                           region.width, raw.data());
        else
            testPatternRow(settings.testImage, sensor.model(), frame, region.x, line, region.width,
                           raw.data());
        correction.apply(raw.data(), region.x, line, region.width, words);
    }

    /// What needs no demosaicing: a mosaic as it stands, or a mono sensor's picture.
    void renderSamples(const PipelineSettings& settings, std::uint64_t frame, const Region& region,
                       COstriaImage& image)
    {
        const MosaicCorrection correction(settings, sensor.model());
        const ColorStages stages(settings);
        std::uint8_t* out = image.writableData();
        for (int y = 0; y < region.height; ++y) {
            mosaicRow(settings, correction, frame, region, y, row.data());
            if (!isBayer(settings.pixelFormat)) {
                stages.applyToMono(row.data(), region.width);
                tone.apply(row.data(), region.width);
            }
            packSamples(settings.pixelFormat, row.data(), region.width,
                        rowOf(out, image.stride(), y));
        }
    }

    void demosaic(const PipelineSettings& settings, std::uint64_t frame, const Region& region)
    {
        if (mosaic.width() != region.width || mosaic.height() != region.height)
            mosaic = COstriaImage(PixelType::BayerRG16, region.width, region.height);
        const MosaicCorrection correction(settings, sensor.model());
        std::uint8_t* first = mosaic.writableData();
        for (int y = 0; y < region.height; ++y)
            mosaicRow(settings, correction, frame, region, y,
                      reinterpret_cast<Word*>(rowOf(first, mosaic.stride(), y)));
        converter.Convert(colors, mosaic);
        if (settings.demosaicing == Demosaicing::HighQuality)
            refineDemosaicing(reinterpret_cast<const Word*>(mosaic.data()), region.width,
                              region.height, reinterpret_cast<Word*>(colors.writableData()));
    }

    void renderColors(const PipelineSettings& settings, std::uint64_t frame, const Region& region,
                      COstriaImage& image)
    {
        const Region grown = withMargin(region, sensor.model());
        demosaic(settings, frame, grown);
        const ColorStages stages(settings);
        std::uint8_t* first = colors.writableData();
        std::uint8_t* out = image.writableData();
        const auto skipped = 3 * static_cast<std::ptrdiff_t>(region.x - grown.x);
        for (int y = 0; y < region.height; ++y) {
            std::uint8_t* line = rowOf(first, colors.stride(), region.y - grown.y + y);
            Word* rgb = reinterpret_cast<Word*>(line) + skipped;
            if (!stages.isNeutral())
                stages.apply(rgb, region.width);
            tone.apply(rgb, 3 * region.width);
            packColors(settings.pixelFormat, rgb, region.width, rowOf(out, image.stride(), y));
        }
    }

    Scene scene;
    Sensor sensor;
    ToneCurve tone;
    Ostria::CImageFormatConverter converter;
    COstriaImage mosaic;
    COstriaImage colors;
    std::vector<float> raw;
    std::vector<Word> row;
};

Renderer::Renderer(const SensorModel& sensor, const Scene& scene)
    : m_state(std::make_unique<State>(sensor, scene))
{}

Renderer::~Renderer() = default;
Renderer::Renderer(Renderer&&) noexcept = default;
Renderer& Renderer::operator=(Renderer&&) noexcept = default;

const SensorModel& Renderer::sensor() const
{
    return m_state->sensor.model();
}

void Renderer::setScene(const Scene& scene)
{
    const SensorModel& model = sensor();
    m_state->sensor.expose(scene.project(model.width, model.height));
    m_state->scene = scene;
}

COstriaImage Renderer::render(const PipelineSettings& settings, std::uint64_t frameNumber)
{
    const Region region = checkedRegion(settings, sensor());
    COstriaImage image(settings.pixelFormat, region.width, region.height);
    if (!m_state->tone.isFor(settings))
        m_state->tone = ToneCurve(settings);
    if (sensor().mono || isBayer(settings.pixelFormat))
        m_state->renderSamples(settings, frameNumber, region, image);
    else
        m_state->renderColors(settings, frameNumber, region, image);
    return image;
}

} // namespace Cameras::Emulation
