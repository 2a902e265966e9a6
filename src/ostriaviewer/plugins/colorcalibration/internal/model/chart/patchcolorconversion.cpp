// SPDX-License-Identifier: Apache-2.0
// Between the colours of a list and the engine's matrix.
#include "patchcolorconversion.h"

#include "colormath.h"

#include <algorithm>

namespace ColorCalibration {

PatchColors toPatchColors(const QVector<QColor>& list, bool fromDisplay)
{
    const ColorMath math;
    PatchColors matrix;
    matrix = 0.0;
    const int count = std::min(list.size(), PatchCount);
    for (int i = 0; i < count; ++i) {
        Color color;
        color = list.at(i).redF() * 255.0, list.at(i).greenF() * 255.0, list.at(i).blueF() * 255.0;
        if (fromDisplay)
            color = math.SrgbToLinear(color);
        dlib::set_rowm(matrix, i) = color;
    }
    return matrix;
}

QVector<QColor> toQColors(const PatchColors& matrix, bool toDisplay)
{
    const ColorMath math;
    QVector<QColor> list;
    list.reserve(PatchCount);
    for (int i = 0; i < PatchCount; ++i) {
        Color color = dlib::rowm(matrix, i);
        if (toDisplay)
            color = math.LinearToSrgb(color);
        list.append(QColor::fromRgbF(color(0) / 255.0, color(1) / 255.0, color(2) / 255.0, 1.0));
    }
    return list;
}

} // namespace ColorCalibration
