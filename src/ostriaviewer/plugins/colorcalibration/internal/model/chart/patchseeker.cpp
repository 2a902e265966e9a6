// SPDX-License-Identifier: Apache-2.0
// Where a ray lies inside an image, and what it reads there.
#include "patchseeker.h"

#include "pixelrows.h"

namespace ColorCalibration {

GreenOfBytes::GreenOfBytes(const RgbBytes& image)
    : m_image(image)
    , m_fractions(byteFractions())
{}

double GreenOfImage::operator()(int x, int y) const
{
    return pixelColorAt(m_image, x, y).greenF();
}

RaySpan raySpan(int start, int step, int size, int length)
{
    const RaySpan none;
    const qint64 last = qint64(size) - 1;
    if (step == 0)
        return start >= 0 && start <= last ? RaySpan{0, length} : none;
    // A ray that runs backwards is the mirror image of one that runs forwards.
    const qint64 from = step > 0 ? qint64(start) : last - start;
    const qint64 stride = step > 0 ? qint64(step) : -qint64(step);
    if (from > last)
        return none;
    const qint64 first = from >= 0 ? 0 : (-from + stride - 1) / stride;
    return {first, qMin<qint64>(length, (last - from) / stride + 1)};
}

} // namespace ColorCalibration
