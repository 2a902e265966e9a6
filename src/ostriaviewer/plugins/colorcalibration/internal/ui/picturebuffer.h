// SPDX-License-Identifier: Apache-2.0
// The memory behind the live image's video frame.
#pragma once

#include <QAbstractVideoBuffer>
#include <QImage>
#include <QMutex>
#include <QSize>

namespace ColorCalibration {

/// Holds the newest whole picture. Whoever maps the frame keeps the picture of that moment until
/// unmapping, while the next one may already be set: so no reader ever sees a part of each.
///
/// Thread-safe. Pictures are shared, not copied.
class PictureBuffer : public QAbstractVideoBuffer
{
public:
    explicit PictureBuffer(const QSize& size);

    /// \param picture  Format_ARGB32, of the buffer's size
    void setPicture(const QImage& picture);
    /// Black before the first setPicture.
    QImage picture() const;
    /// Whether there was a setPicture.
    bool hasPicture() const;

    MapMode mapMode() const override;

    /// Lends the picture for reading, rows from the top, without padding. Null if it is lent
    /// already, if the mode asks for more than reading, or if memory did not suffice.
    uchar* map(MapMode mode, int* numBytes, int* bytesPerLine) override;
    void unmap() override;

private:
    mutable QMutex m_mutex;
    QImage m_picture;
    bool m_hasPicture = false;
    QImage m_mapped;
    MapMode m_mapMode = NotMapped;
};

} // namespace ColorCalibration
