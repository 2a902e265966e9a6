// SPDX-License-Identifier: Apache-2.0
// The image value: a camera image at its own bit depth with an 8-bit copy for display.
#pragma once

#include "ostriaimage.h"

#include <QExplicitlySharedDataPointer>
#include <QImage>
#include <QRgb>
#include <QSharedData>
#include <QSharedDataPointer>
#include <QVector>

#include <vector>

namespace ColorCalibration {

/// What the display buffer of an Image holds. Images carry the plain code.
enum ImageFormat : int {
    NoImage = -1, ///< nothing
    Mono8 = 0,    ///< one byte a pixel, QImage::Format_Indexed8 with grayColorTable
    Color32 = 1   ///< four bytes a pixel, QImage::Format_RGB32
};

/// The 256 grays from black to white, built once for the process. Thread-safe.
const QVector<QRgb>& grayColorTable();

/// A camera image and its display buffer.
///
/// A value with shared state: copies are cheap, the display buffer is copied when it is written to
/// while shared, and the camera's pixels are shared by all images made from one another. What is
/// measured is the camera image; the display buffer serves the screen alone. Reentrant; copies may
/// live in different threads.
class Image
{
public:
    /// No image: width and height 0, format NoImage.
    Image() = default;

    /// The camera pixels of another image with a zeroed display buffer of the other's size.
    /// \param format  an ImageFormat code; NoImage gives an image without size and buffer
    Image(const Image& other, int format);

    /// A camera image with a zeroed display buffer of the given size.
    /// A size that is not the camera image's is logged; the image remains as constructed. There is
    /// no buffer where it would take more bytes than an int counts. May throw std::bad_alloc.
    /// \param width, height  pixels
    /// \param format         an ImageFormat code
    Image(int width, int height, int format, const Ostria::COstriaImage& cameraImage);

    /// A camera image with a zeroed display buffer of its size; a default Image if it holds no
    /// pixels.
    static Image fromCameraImage(int format, const Ostria::COstriaImage& cameraImage);

    /// Whether there is a format and a camera image with pixels.
    bool isValid() const;

    int width() const;
    int height() const;
    int format() const;

    /// Bytes of a row of the display buffer, a multiple of 4; 0 for an image that is not valid.
    int stride() const;

    /// The display buffer as a QImage that refers to it without owning it: it must not outlive
    /// this Image and must not be written to. Null for an image that is not valid.
    QImage toQImage() const;

    /// The display buffer for writing, stride() times height() bytes, not shared with any other
    /// Image afterwards. Null where there is none.
    uchar* writableBuffer();

    /// The camera's pixels, for measuring.
    Ostria::COstriaImage cameraImage() const;

private:
    struct ImageData : QSharedData
    {
        int width = 0;
        int height = 0;
        int format = NoImage;
        std::vector<uchar> buffer;
    };
    struct CameraData : QSharedData
    {
        Ostria::COstriaImage image;
    };

    void createBuffer(int width, int height, int format);
    bool sizeMatches() const;

    QSharedDataPointer<ImageData> m_data;
    QExplicitlySharedDataPointer<CameraData> m_camera;
};

} // namespace ColorCalibration
