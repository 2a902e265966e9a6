// SPDX-License-Identifier: Apache-2.0
// Colour space conversions and the CIEDE2000 colour difference.
#include "colormath.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ColorCalibration {

namespace {

constexpr double Pi = 3.141592653589793;
constexpr double DegreesPerRadian = 57.29577951308232;
constexpr double Negligible = 1e-12;

double labFunction(double t)
{
    return t > 0.008856 ? std::pow(t, 0.3333333333333333) : (t * 903.3 + 16.0) / 116.0;
}

// The share by which a chroma exceeds 25, from 0 to 1, as the formula uses it twice.
double chromaShare(double chroma)
{
    const double power7 = std::pow(chroma, 7.0);
    constexpr double Power7Of25 = 6103515625.0;
    return std::sqrt(power7 / (power7 + Power7Of25));
}

double hueAngle(double a, double b)
{
    if (std::abs(b) + std::abs(a) <= Negligible) {
        return 0.0;
    }
    const double angle = std::atan2(b, a);
    return angle < 0.0 ? angle + 2.0 * Pi : angle;
}

double hueDifference(double hue1, double hue2)
{
    const double difference = hue2 - hue1;
    if (difference > Pi) {
        return difference - 2.0 * Pi;
    }
    return difference < -Pi ? difference + 2.0 * Pi : difference;
}

double hueMean(double hue1, double hue2)
{
    double mean = (hue1 + hue2) / 2.0;
    if (std::abs(hue1 - hue2) > Pi) {
        mean -= Pi;
    }
    return mean < 0.0 ? mean + 2.0 * Pi : mean;
}

double hueWeight(double hue)
{
    return 1.0 - 0.17 * std::cos(hue - 0.5235987755982988) + 0.24 * std::cos(2.0 * hue) +
           0.32 * std::cos(3.0 * hue + 0.10471975511965977) -
           0.2 * std::cos(4.0 * hue - 1.0995574287564276);
}

double lightnessWeight(double meanLightness, bool ignoreLightness)
{
    if (ignoreLightness) {
        return std::numeric_limits<double>::max();
    }
    const double offset = (meanLightness - 50.0) * (meanLightness - 50.0);
    return 1.0 + 0.015 * offset / std::sqrt(20.0 + offset);
}

// Turns chroma and hue against each other in the blue region, around 275 degrees.
double rotation(double hue, double meanChroma)
{
    const double distance = (hue * DegreesPerRadian - 275.0) / 25.0;
    const double angle = 0.5235987755982988 * std::exp(-(distance * distance));
    return -std::sin(2.0 * angle) * (2.0 * chromaShare(meanChroma));
}

} // namespace

ColorMatrix ColorMath::RgbToXyzMatrix() const
{
    ColorMatrix matrix;
    matrix = 0.4124564, 0.3575761, 0.1804375, //
        0.2126729, 0.7151522, 0.072175,       //
        0.0193339, 0.119192, 0.9503041;
    return matrix;
}

Color ColorMath::WhitePoint() const
{
    Color white;
    white = 0.95047, 1.0, 1.08883;
    return white;
}

Color ColorMath::LinearRgbToXyz(const Color& rgb, const ColorMatrix& matrix) const
{
    return dlib::trans(matrix * dlib::trans(rgb / 255.0)) * 100.0;
}

Color ColorMath::XyzToLab(const Color& xyz, const Color& white) const
{
    const double x = labFunction(xyz(0) / (white(0) * 100.0));
    const double y = labFunction(xyz(1) / (white(1) * 100.0));
    const double z = labFunction(xyz(2) / (white(2) * 100.0));
    Color lab;
    lab = 116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z);
    return lab;
}

double ColorMath::DeltaE(const Color& lab1, const Color& lab2, bool ignoreLightness) const
{
    const double plainChroma1 = std::sqrt(lab1(1) * lab1(1) + lab1(2) * lab1(2));
    const double plainChroma2 = std::sqrt(lab2(1) * lab2(1) + lab2(2) * lab2(2));
    const double stretch = 1.0 + (1.0 - chromaShare((plainChroma1 + plainChroma2) / 2.0)) / 2.0;
    const double a1 = stretch * lab1(1);
    const double a2 = stretch * lab2(1);
    const double chroma1 = std::sqrt(a1 * a1 + lab1(2) * lab1(2));
    const double chroma2 = std::sqrt(a2 * a2 + lab2(2) * lab2(2));
    const double hue1 = hueAngle(a1, lab1(2));
    const double hue2 = hueAngle(a2, lab2(2));
    const double chromaProduct = chroma1 * chroma2;
    const bool hueless = std::abs(chromaProduct) <= Negligible;

    const double hueStep = hueless ? 0.0 : hueDifference(hue1, hue2);
    const double meanHue = hueless ? hue1 + hue2 : hueMean(hue1, hue2);
    const double meanChroma = (chroma1 + chroma2) / 2.0;

    const double lightness =
        (lab2(0) - lab1(0)) / lightnessWeight((lab1(0) + lab2(0)) / 2.0, ignoreLightness);
    const double chroma = (chroma2 - chroma1) / (1.0 + 0.045 * meanChroma);
    const double hue = 2.0 * std::sqrt(chromaProduct) * std::sin(hueStep / 2.0) /
                       (1.0 + 0.015 * meanChroma * hueWeight(meanHue));
    return std::sqrt(lightness * lightness + chroma * chroma + hue * hue +
                     rotation(meanHue, meanChroma) * chroma * hue);
}

double ColorMath::DeltaC(const Color& lab1, const Color& lab2) const
{
    return DeltaE(lab1, lab2, true);
}

double ColorMath::LinearToSrgb(double value) const
{
    const double x = value / 255.0;
    const double encoded =
        x <= 0.0031308049535603713 ? x * 12.92 : 1.055 * std::pow(x, 0.4166666666666667) - 0.055;
    return std::clamp(encoded * 255.0, 0.0, 255.0);
}

Color ColorMath::LinearToSrgb(const Color& rgb) const
{
    Color encoded;
    encoded = LinearToSrgb(rgb(0)), LinearToSrgb(rgb(1)), LinearToSrgb(rgb(2));
    return encoded;
}

double ColorMath::SrgbToLinear(double value) const
{
    const double x = value / 255.0;
    const double linear = x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4);
    return std::clamp(linear * 255.0, 0.0, 255.0);
}

Color ColorMath::SrgbToLinear(const Color& rgb) const
{
    Color linear;
    linear = SrgbToLinear(rgb(0)), SrgbToLinear(rgb(1)), SrgbToLinear(rgb(2));
    return linear;
}

} // namespace ColorCalibration
