// SPDX-License-Identifier: Apache-2.0
// The memory behind the live image's video frame.
#include "picturebuffer.h"

#include <QMutexLocker>

namespace ColorCalibration {

PictureBuffer::PictureBuffer(const QSize& size)
    : QAbstractVideoBuffer(NoHandle)
    , m_picture(size, QImage::Format_ARGB32)
{
    m_picture.fill(Qt::black);
}

void PictureBuffer::setPicture(const QImage& picture)
{
    const QMutexLocker lock(&m_mutex);
    m_picture = picture;
    m_hasPicture = true;
}

QImage PictureBuffer::picture() const
{
    const QMutexLocker lock(&m_mutex);
    return m_picture;
}

bool PictureBuffer::hasPicture() const
{
    const QMutexLocker lock(&m_mutex);
    return m_hasPicture;
}

QAbstractVideoBuffer::MapMode PictureBuffer::mapMode() const
{
    const QMutexLocker lock(&m_mutex);
    return m_mapMode;
}

uchar* PictureBuffer::map(MapMode mode, int* numBytes, int* bytesPerLine)
{
    const QMutexLocker lock(&m_mutex);
    if (mode != ReadOnly || m_mapMode != NotMapped || m_picture.isNull())
        return nullptr;
    m_mapMode = mode;
    m_mapped = m_picture;
    if (numBytes)
        *numBytes = static_cast<int>(m_mapped.sizeInBytes());
    if (bytesPerLine)
        *bytesPerLine = m_mapped.bytesPerLine();
    // The interface knows no constant memory.
    return const_cast<uchar*>(m_mapped.constBits());
}

void PictureBuffer::unmap()
{
    const QMutexLocker lock(&m_mutex);
    m_mapped = QImage();
    m_mapMode = NotMapped;
}

} // namespace ColorCalibration
