// SPDX-License-Identifier: Apache-2.0
// How colours are compared: linear RGB to CIE Lab, colour differences, the sRGB curve.
#pragma once

#include "patchcolors.h"

namespace ColorCalibration {

/// Colour formulas. Stateless and reentrant; no operation throws. A NaN in a colour passes into the
/// result.
class ColorMath
{
public:
    /// \return  linear sRGB to XYZ for the white point D65 (IEC 61966-2-1): rows X, Y, Z, columns
    ///          R, G, B
    ColorMatrix RgbToXyzMatrix() const;

    /// \return  X, Y, Z of D65, relative to Y = 1
    Color WhitePoint() const;

    /// \param rgb     linear light, nominally 0 to 255; nothing is clamped
    /// \param matrix  rows X, Y, Z, columns R, G, B
    /// \return  X, Y, Z; a colour of 255, 255, 255 has Y = 100
    Color LinearRgbToXyz(const Color& rgb, const ColorMatrix& matrix) const;

    /// CIE 1976 L*a*b* (CIE 15).
    /// \param xyz    on 0 to 100
    /// \param white  the white point, relative to Y = 1
    /// \return  L*, a*, b*
    Color XyzToLab(const Color& xyz, const Color& white) const;

    /// CIEDE2000 colour difference (CIE 142-2001), kL = kC = kH = 1, after Sharma, Wu and Dalal,
    /// "The CIEDE2000 color-difference formula", Color Research and Application 30 (2005).
    /// \param lab1, lab2       L*, a*, b*; a chroma far outside of the real ones (1e43) overflows
    /// \param ignoreLightness  drops the lightness term: chroma and hue alone
    /// \return  not negative; symmetric in the two colours
    double DeltaE(const Color& lab1, const Color& lab2, bool ignoreLightness) const;

    /// \return  DeltaE without its lightness term
    double DeltaC(const Color& lab1, const Color& lab2) const;

    /// The sRGB curve (IEC 61966-2-1). It changes its branch where SrgbToLinear does, so that the
    /// two are inverse to each other.
    /// \param value  one channel in linear light, nominally 0 to 255
    /// \return  the encoded channel, clamped to 0 to 255; a NaN stays a NaN
    double LinearToSrgb(double value) const;

    /// The same for R, G and B.
    Color LinearToSrgb(const Color& rgb) const;

    /// The inverse sRGB curve (IEC 61966-2-1).
    /// \param value  one encoded channel, nominally 0 to 255
    /// \return  the channel in linear light, clamped to 0 to 255; a NaN stays a NaN
    double SrgbToLinear(double value) const;

    /// The same for R, G and B.
    Color SrgbToLinear(const Color& rgb) const;
};

} // namespace ColorCalibration
