// SPDX-License-Identifier: Apache-2.0
// Reads rows of a QImage of any format as QImage::pixelColor does, and faster where it can.
#pragma once

#include "rgbbytes.h"

#include <QColor>
#include <QImage>

namespace ColorCalibration {

/// The colour that QImage::pixelColor answers. An index without an entry in the image's colour
/// table, which Qt would look up beyond the table's end, is black. Reentrant.
/// \param x, y  inside the image
QColor pixelColorAt(const QImage& image, int x, int y);

/// A byte's share of the full scale, v / 255: the value of QColor::redF for an 8-bit channel.
/// \return  256 entries, 0 to 1
const double* byteFractions();

/// Row by row access. Keeps a shared copy of the image, so the pixels are neither copied nor
/// changed. Reentrant.
class PixelRows
{
public:
    explicit PixelRows(const QImage& image);

    int width() const { return m_image.width(); }
    int height() const { return m_image.height(); }

    /// Red, green, blue of each pixel as QColor::redF and its like tell them, 0 to 1. Alpha plays
    /// no part: the colour is the one before premultiplication.
    /// \param y    inside the image
    /// \param rgb  room for 3 * width values
    void readFractions(int y, double* rgb) const;

    /// The same as QColor::red and its like tell them, 0 to 255.
    void readBytes(int y, unsigned char* rgb) const;

private:
    /// Where a format keeps its 8-bit channels. A step of 0 stands for any other format.
    struct ByteLayout
    {
        int step = 0;
        int red = 0;
        int green = 0;
        int blue = 0;
        int premultiplier = -1; ///< byte that must be 255 for the channels to be taken as they are
    };
    static ByteLayout byteLayout(QImage::Format format);

    template <typename Convert, typename Value>
    void read(int y, const Value* byteValues, Convert convert, Value* rgb) const;

    QImage m_image;
    ByteLayout m_layout;
};

/// All pixels as readBytes tells them.
RgbBytes toRgbBytes(const QImage& image);

/// An opaque image of QImage::Format_ARGB32.
QImage toImage(const RgbBytes& bytes);

} // namespace ColorCalibration
