// SPDX-License-Identifier: Apache-2.0
// Brings a camera from any exposure time to one at which the chart can be seen.
#include "exposuresearch.h"

#include <algorithm>

namespace ColorCalibrate {
namespace {

constexpr int saturatedLevel = 250;
constexpr int darkLevel = 48;
constexpr int brightLevel = 128;

// A level of 255 is 170 percent of the gray patch's goal.
constexpr double saturatedHitRate = 165.0;
constexpr double darkHitRate = 10.0;

// Bright images say little of how much too bright they are, so the way down goes in small steps.
constexpr double stepDown = 0.5;
/// A longer one would not end before the time that an image may take; microseconds.
constexpr double longestTried = 2e6;
constexpr double stepUp = 4.0;

int largestChannel(QRgb pixel)
{
    return std::max({qRed(pixel), qGreen(pixel), qBlue(pixel)});
}

} // namespace

Light lightOf(const QImage& image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    qint64 saturated = 0;
    qint64 lit = 0;
    qint64 bright = 0;
    for (int y = 0; y < rgb.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x) {
            const int level = largestChannel(row[x]);
            saturated += level >= saturatedLevel ? 1 : 0;
            lit += level >= darkLevel ? 1 : 0;
            bright += level >= brightLevel ? 1 : 0;
        }
    }
    const qint64 pixels = qint64{rgb.width()} * rgb.height();
    if (saturated * 5 > pixels)
        return Light::TooBright;
    // A small chart on black lights little of the image, but not all of that is dim.
    return lit * 20 < pixels && bright * 200 < pixels ? Light::TooDark : Light::Usable;
}

Light lightOf(double hitRate)
{
    if (hitRate >= saturatedHitRate)
        return Light::TooBright;
    return hitRate <= darkHitRate ? Light::TooDark : Light::Usable;
}

QString advice(Light light)
{
    switch (light) {
    case Light::TooBright:
        return QStringLiteral("; the image is over-exposed: shorten the exposure time, lower the "
                              "gain, or give less light");
    case Light::TooDark:
        return QStringLiteral("; the image is too dark: lengthen the exposure time, open the lens, "
                              "or give more light");
    default:
        return {};
    }
}

bool ExposureSearch::moveFrom(Light light)
{
    double lowest = 0.0;
    double value = 0.0;
    double highest = 0.0;
    if (!m_isAllowed || light == Light::Usable || m_stepsLeft-- <= 0 ||
        !m_model.GetExposureTimeRange(lowest, value, highest))
        return false;
    const double wanted = value * (light == Light::TooBright ? stepDown : stepUp);
    const double ceiling = std::min(highest, std::max(value, longestTried));
    const double next = std::min(std::max(wanted, lowest), ceiling);
    return next != value && m_model.SetExposureTime(next);
}

} // namespace ColorCalibrate
